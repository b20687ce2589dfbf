#pragma once

#include "platform/Operator.h"

#include <QString>

#include <deque>
#include <functional>
#include <optional>
#include <utility>
#include <vector>

/// An operator who answers from a script: every message in its order, to the letter, with its
/// answer. One too many, one too few or a different word fails the test.
class ScriptedOperator : public Operator {
public:
    ~ScriptedOperator() override;

    void ExpectMessage(const QString& text, const QString& title = {});
    void ExpectQuestion(const QString& text, const QString& title, Answer answer);
    /// A warning with OK and Cancel.
    void ExpectWarning(const QString& text, const QString& title, Answer answer);
    /// An input box without a proposal, in its order among the messages; nothing stands for Cancel.
    void ExpectInputBox(const QString& prompt, const QString& title,
                        const std::optional<QString>& answer);

    /// The next file, colour or font dialog, with what it is opened with and its answer; nothing
    /// stands for Cancel.
    void ExpectFileDialog(const QString& filter, const std::optional<QString>& path);
    void ExpectColorDialog(quint32 color, std::optional<quint32> answer);
    void ExpectFontDialog(const QString& name, const std::optional<QString>& answer);

    /// The next printer dialog, with the copies that it is opened with; nothing stands for Cancel.
    /// A destination as it is made by default stands for OK without touching anything.
    void ExpectPrinterDialog(int copies, const std::optional<PrintDestination>& answer);
    /// The printers and documents that printer dialogs were opened with, in order.
    std::vector<std::pair<QString, QString>> PrinterDialogs;

    /// Fails the test when a message of the script has not come yet.
    void ExpectNothingLeft();

    int Beeps = 0;
    /// The hourglass turned on (true) and off, in order.
    std::vector<bool> BusyChanges;

    /// What happens while a message is open, before its answer.
    std::function<void()> WhileMessageIsOpen;

    /// The works that have told their progress, with their steps, and the steps told of.
    std::vector<std::pair<QString, int>> Works;
    std::vector<int> StepsDone;
    /// A work that has begun to tell its progress has not ended yet.
    bool IsWorkShown = false;
    /// The operator stops the work when it has come so far.
    std::optional<int> StopsAtStep;

    Answer MsgBox(const QString& text, Buttons buttons, const QString& title) override;
    std::optional<QString> InputBox(const QString& prompt, const QString& title,
                                    const QString& proposal) override;
    std::optional<QString> AskForFile(const QString& filter) override;
    std::optional<quint32> AskForColor(quint32 color) override;
    std::optional<QString> AskForFont(const QString& name) override;
    std::optional<PrintDestination> AskForPrinter(const PrintDestination& destination,
                                                  const QString& documentName) override;
    void Beep() override;
    void ShowBusy(bool busy) override;
    void BeginProgress(const QString& work, int steps) override;
    bool ShowProgress(int stepsDone) override;
    void EndProgress() override;

private:
    struct Line {
        QString text;
        /// None for an input box.
        std::optional<Buttons> buttons;
        QString title;
        Answer answer = Answer::Cancel;
        std::optional<QString> input = {};
    };
    /// Takes the next line of the script, if there is one, and compares.
    std::optional<Line> NextLine(const QString& text, std::optional<Buttons> buttons,
                                 const QString& title);
    template <typename Value>
    struct Dialog {
        Value opened;
        std::optional<Value> answer;
    };
    template <typename Value>
    static std::optional<Value> AnswerOf(std::deque<Dialog<Value>>& dialogs, const Value& opened);

    std::deque<Line> script;
    std::deque<Dialog<QString>> fileDialogs;
    std::deque<Dialog<quint32>> colorDialogs;
    std::deque<Dialog<QString>> fontDialogs;
    struct PrinterDialog {
        int copies;
        std::optional<PrintDestination> answer;
    };
    std::deque<PrinterDialog> printerDialogs;
};
