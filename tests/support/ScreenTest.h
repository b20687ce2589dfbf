#pragma once

#include "platform/RuntimeFailure.h"
#include "startup/Screens.h"
#include "support/OfficeTest.h"

#include <QAbstractButton>
#include <QTest>

class Grid;

/// The real screens on a fresh data folder, driven with real keys and clicks on controls that are
/// found by name.
class ScreenTest : public OfficeTest {
protected:
    ScreenTest();
    /// On a machine with serial ports.
    explicit ScreenTest(SerialPort& serialPort);

    /// The control of that name on a screen. A missing one fails the test with the list of the
    /// names that are there.
    template <typename Control>
    Control* Find(ScreenName screen, const QString& name) {
        auto* control = screens.Find(screen)->findChild<Control*>(name);
        if (!control)
            TellNames(screen, name);
        return control;
    }

    void Click(ScreenName screen, const QString& button);
    void ClickCell(Grid* grid, int row, int column);
    static void Press(QWidget* control, Qt::Key key);
    static void Type(QWidget* control, const QString& text);
    bool IsShown(ScreenName screen) const;
    /// The texts of all labels in a part of a screen, in the order of their making.
    static QStringList TextsIn(const QWidget* part);
    /// What the window's close box does.
    void CloseByUser(ScreenName screen) const;
    /// Empty files of products, vehicles and customers, so that the menu opens everything.
    void WriteMasterFiles() const;

    /// What a real failure would have ended the program with; the test takes it instead.
    static std::vector<RuntimeFailure>& Failures();

    Screens screens;
    int exitRequests = 0;

private:
    void TellNames(ScreenName screen, const QString& name) const;
};
