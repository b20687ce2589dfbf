#pragma once

#include "platform/Operator.h"

#include <memory>

class QProgressDialog;

/// The operator at the desktop: the toolkit's own dialogs over the window in front.
class DesktopOperator : public Operator {
public:
    DesktopOperator();
    ~DesktopOperator() override;
    DesktopOperator(const DesktopOperator&) = delete;
    DesktopOperator& operator=(const DesktopOperator&) = delete;

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
    std::unique_ptr<QProgressDialog> progress;
};
