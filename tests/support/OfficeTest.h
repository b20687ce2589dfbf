#pragma once

#include "platform/Clock.h"
#include "platform/RuntimeFailure.h"
#include "platform/WebBrowser.h"
#include "startup/Office.h"
#include "support/FakePictures.h"
#include "support/RecordingPrinter.h"
#include "support/ScriptedOperator.h"
#include "support/TestFolder.h"
#include "support/TextOutput.h"

#include <QStringList>

#include <gtest/gtest.h>
#include <optional>

/// A date that stands still until the test moves it.
class SetClock : public Clock {
public:
    QDate Date{2026, 3, 9};
    QDate Today() const override { return Date; }
};

class RecordingBrowser : public WebBrowser {
public:
    QStringList Addresses;
    void Open(const QString& address) override { Addresses += address; }
};

/// All rule modules on a fresh data folder with its folders made, on Monday, 9 March 2026, under
/// United States formats, with a scripted operator and a recording printer.
class OfficeTest : public testing::Test {
protected:
    OfficeTest();
    /// On a machine with serial ports.
    explicit OfficeTest(SerialPort& serialPort);

    void UseLocale(const char* name) const;

    TestFolder folder;
    SetClock clock;
    ScriptedOperator user;
    RecordingPrinter printer;
    RecordingBrowser browser;
    FakePictures pictures;
    Office office;
};

/// The 22 lines of a slip's header file: an 08:30am delivery by Flatbed Truck for account 4471,
/// Corner Grocery, told apart by the lines that the rules look at.
QByteArray SlipHeaderBytes(const QByteArray& number, const QByteArray& date,
                           const QByteArray& recurring = "False", const QByteArray& frequency = {});

/// The failure that a statement ends in; fails the test when it ends in none.
template <typename Statement>
RuntimeFailure FailureOf(Statement&& statement) {
    try {
        statement();
    } catch (const RuntimeFailure& failure) {
        return failure;
    }
    ADD_FAILURE() << "Nothing failed.";
    return {FailureKind::Subscript, QString()};
}
