#pragma once

#include "platform/PrintDestination.h"

#include <QString>

#include <optional>

/// OkCancel is a warning before something is done; YesNo asks.
enum class Buttons { Ok, YesNo, OkCancel };
enum class Answer { Ok, Cancel, Yes, No };

/// The person at the screen, as the rule modules see them: someone to ask and to tell. The
/// program answers with real dialogs; a test answers from a script.
class Operator {
public:
    virtual ~Operator() = default;

    /// Shows a message and waits for the answer. An empty title stands for the program's own.
    virtual Answer MsgBox(const QString& text, Buttons buttons = Buttons::Ok,
                          const QString& title = {}) = 0;

    /// Asks for one line of text; nothing when the operator cancels.
    virtual std::optional<QString> InputBox(const QString& prompt, const QString& title = {},
                                            const QString& proposal = {}) = 0;

    /// Asks for a file that is there; its full path, or nothing when the operator cancels. The
    /// filter is pairs of a name and its patterns, all parted by "|".
    virtual std::optional<QString> AskForFile(const QString& filter) = 0;
    /// Asks for a colour, 0x00BBGGRR, starting from one; nothing when the operator cancels.
    virtual std::optional<quint32> AskForColor(quint32 color) = 0;
    /// Asks for the name of a font that a printer can print; nothing when the operator cancels.
    virtual std::optional<QString> AskForFont(const QString& name) = 0;
    /// Asks where to print, starting from a destination: the printer and the copies that the dialog
    /// was left with, or the file when the operator prints into one. Nothing when he cancels. The
    /// file that is proposed is named after the document.
    virtual std::optional<PrintDestination> AskForPrinter(const PrintDestination& destination,
                                                          const QString& documentName) = 0;

    virtual void Beep() = 0;

    /// Turns the mouse pointer into the hourglass, and back.
    virtual void ShowBusy(bool busy) = 0;

    // How far a long work has got, with a way to stop it. Where no one watches, nobody stops it.
    virtual void BeginProgress(const QString& /*work*/, int /*steps*/) {}
    /// False when the operator wants the work to stop.
    virtual bool ShowProgress(int /*stepsDone*/) { return true; }
    virtual void EndProgress() {}
};

/// The hourglass for as long as it lives.
class BusyPointer {
public:
    explicit BusyPointer(Operator& person) : user(person) { user.ShowBusy(true); }
    ~BusyPointer() { user.ShowBusy(false); }
    BusyPointer(const BusyPointer&) = delete;
    BusyPointer& operator=(const BusyPointer&) = delete;

private:
    Operator& user;
};

/// The display of a long work's progress for as long as it lives. A short work shows none.
class Progress {
public:
    Progress(Operator& person, const QString& work, int steps) : user(person) {
        user.BeginProgress(work, steps);
    }
    ~Progress() { user.EndProgress(); }
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    /// False when the operator wants the work to stop.
    bool Show(int stepsDone) { return user.ShowProgress(stepsDone); }

private:
    Operator& user;
};
