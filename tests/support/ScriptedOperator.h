#pragma once

#include "platform/Operator.h"

#include <QString>

#include <deque>
#include <vector>

/// An operator who answers from a script: every message in its order, to the letter, with its
/// answer. One too many, one too few or a different word fails the test.
class ScriptedOperator : public Operator {
public:
    ~ScriptedOperator() override;

    void ExpectMessage(const QString& text, const QString& title = {});
    void ExpectQuestion(const QString& text, const QString& title, Answer answer);

    /// Fails the test when a message of the script has not come yet.
    void ExpectNothingLeft();

    int Beeps = 0;
    /// The hourglass turned on (true) and off, in order.
    std::vector<bool> BusyChanges;

    Answer MsgBox(const QString& text, Buttons buttons, const QString& title) override;
    std::optional<QString> InputBox(const QString& prompt, const QString& title,
                                    const QString& proposal) override;
    void Beep() override;
    void ShowBusy(bool busy) override;

private:
    struct Line {
        QString text;
        Buttons buttons;
        QString title;
        Answer answer;
    };
    std::deque<Line> script;
};
