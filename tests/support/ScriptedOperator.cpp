#include "support/ScriptedOperator.h"

#include "support/TextOutput.h"

#include <gtest/gtest.h>

ScriptedOperator::~ScriptedOperator() {
    ExpectNothingLeft();
}

void ScriptedOperator::ExpectMessage(const QString& text, const QString& title) {
    script.push_back({text, Buttons::Ok, title, Answer::Ok});
}

void ScriptedOperator::ExpectQuestion(const QString& text, const QString& title, Answer answer) {
    script.push_back({text, Buttons::YesNo, title, answer});
}

void ScriptedOperator::ExpectWarning(const QString& text, const QString& title, Answer answer) {
    script.push_back({text, Buttons::OkCancel, title, answer});
}

void ScriptedOperator::ExpectInputBox(const QString& prompt, const QString& title,
                                      const std::optional<QString>& answer) {
    script.push_back({prompt, {}, title, Answer::Cancel, answer});
}

void ScriptedOperator::ExpectFileDialog(const QString& filter, const std::optional<QString>& path) {
    fileDialogs.push_back({filter, path});
}

void ScriptedOperator::ExpectColorDialog(quint32 color, std::optional<quint32> answer) {
    colorDialogs.push_back({color, answer});
}

void ScriptedOperator::ExpectFontDialog(const QString& name, const std::optional<QString>& answer) {
    fontDialogs.push_back({name, answer});
}

void ScriptedOperator::ExpectPrinterDialog(int copies,
                                           const std::optional<PrintDestination>& answer) {
    printerDialogs.push_back({copies, answer});
}

void ScriptedOperator::ExpectNothingLeft() {
    for (const Line& line : script)
        ADD_FAILURE() << "This message never came: " << line.text.toStdString();
    script.clear();
    EXPECT_TRUE(fileDialogs.empty() && colorDialogs.empty() && fontDialogs.empty() &&
                printerDialogs.empty())
        << "A dialog never came.";
}

template <typename Value>
std::optional<Value> ScriptedOperator::AnswerOf(std::deque<Dialog<Value>>& dialogs,
                                                const Value& opened) {
    if (dialogs.empty()) {
        ADD_FAILURE() << "A dialog too many.";
        return {};
    }
    const Dialog<Value> dialog = dialogs.front();
    dialogs.pop_front();
    EXPECT_EQ(opened, dialog.opened);
    return dialog.answer;
}

std::optional<QString> ScriptedOperator::AskForFile(const QString& filter) {
    return AnswerOf(fileDialogs, filter);
}

std::optional<quint32> ScriptedOperator::AskForColor(quint32 color) {
    return AnswerOf(colorDialogs, color);
}

std::optional<QString> ScriptedOperator::AskForFont(const QString& name) {
    return AnswerOf(fontDialogs, name);
}

std::optional<PrintDestination> ScriptedOperator::AskForPrinter(const PrintDestination& destination,
                                                                const QString& documentName) {
    PrinterDialogs.emplace_back(destination.Printer, documentName);
    if (printerDialogs.empty()) {
        ADD_FAILURE() << "A printer dialog too many.";
        return {};
    }
    const PrinterDialog dialog = printerDialogs.front();
    printerDialogs.pop_front();
    EXPECT_EQ(destination.Copies, dialog.copies);
    EXPECT_TRUE(destination.File.isEmpty());
    return dialog.answer;
}

std::optional<ScriptedOperator::Line> ScriptedOperator::NextLine(const QString& text,
                                                                 std::optional<Buttons> buttons,
                                                                 const QString& title) {
    if (script.empty()) {
        ADD_FAILURE() << "A message or input box too many: " << text.toStdString();
        return {};
    }
    const Line line = script.front();
    script.pop_front();
    EXPECT_EQ(text, line.text);
    EXPECT_EQ(buttons, line.buttons);
    EXPECT_EQ(title, line.title);
    if (WhileMessageIsOpen)
        WhileMessageIsOpen();
    return line;
}

Answer ScriptedOperator::MsgBox(const QString& text, Buttons buttons, const QString& title) {
    if (const auto line = NextLine(text, buttons, title))
        return line->answer;
    switch (buttons) {
    case Buttons::Ok:
        return Answer::Ok;
    case Buttons::OkCancel:
        return Answer::Cancel;
    case Buttons::YesNo:
        break;
    }
    return Answer::No;
}

std::optional<QString> ScriptedOperator::InputBox(const QString& prompt, const QString& title,
                                                  const QString& proposal) {
    EXPECT_EQ(proposal, QString());
    const auto line = NextLine(prompt, {}, title);
    return line ? line->input : std::nullopt;
}

void ScriptedOperator::Beep() {
    ++Beeps;
}

void ScriptedOperator::ShowBusy(bool busy) {
    BusyChanges.push_back(busy);
}

void ScriptedOperator::BeginProgress(const QString& work, int steps) {
    EXPECT_FALSE(IsWorkShown) << "Two works at once.";
    IsWorkShown = true;
    Works.emplace_back(work, steps);
}

bool ScriptedOperator::ShowProgress(int stepsDone) {
    EXPECT_TRUE(IsWorkShown);
    StepsDone.push_back(stepsDone);
    return !StopsAtStep || stepsDone < *StopsAtStep;
}

void ScriptedOperator::EndProgress() {
    IsWorkShown = false;
}
