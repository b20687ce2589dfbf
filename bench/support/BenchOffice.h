#pragma once

#include "platform/PagePrinter.h"
#include "startup/Office.h"

#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <chrono>
#include <optional>

/// A fresh folder on the disk: the temporary folder can be memory.
class BenchFolder {
public:
    QString Path() const { return directory.path(); }

private:
    QTemporaryDir directory{QStringLiteral("/var/tmp/tessel-bench-XXXXXX")};
};

class FixedClock : public Clock {
public:
    QDate Today() const override { return {2026, 3, 9}; }
};

/// Answers No or Cancel to every question, takes messages in silence, and knows when the first
/// came.
class NoSayer : public Operator {
public:
    /// The answer to input boxes; none for a cancel.
    std::optional<QString> Input;
    std::optional<std::chrono::steady_clock::time_point> FirstMessage;

    Answer MsgBox(const QString& text, Buttons buttons, const QString& title) override;
    std::optional<QString> InputBox(const QString&, const QString&, const QString&) override {
        return Input;
    }
    std::optional<QString> AskForFile(const QString&) override { return {}; }
    std::optional<quint32> AskForColor(quint32) override { return {}; }
    std::optional<QString> AskForFont(const QString&) override { return {}; }
    std::optional<PrintDestination> AskForPrinter(const PrintDestination&,
                                                  const QString&) override {
        return {};
    }
    void Beep() override {}
    void ShowBusy(bool) override {}
};

class NoPictures : public PictureFiles {
public:
    bool Exists(const QString&) const override { return false; }
    Picture Load(const QString&) const override { return {}; }
};

class NoBrowser : public WebBrowser {
public:
    void Open(const QString&) override {}
};

/// All rule modules on a data folder with its folders made, on Monday, 9 March 2026, under United
/// States formats.
struct BenchOffice {
    explicit BenchOffice(const QString& dataFolder);

    FixedClock clock;
    NoSayer user;
    NoBrowser browser;
    NoPictures pictures;
    PagePrinter printer{[](const QString&) {}};
    Office rules;
};

/// A slip as the benchmarks need it: what is not given is plain and the same for all.
struct BenchSlip {
    QString number;
    QString date = QStringLiteral("3/16/2026");
    QString time = QStringLiteral("08:30am");
    QString recurring = QStringLiteral("False");
    QString frequency = {};
    QString vehicle = QStringLiteral("Flatbed Truck");
    QString customer = QStringLiteral("Corner Grocery");
};

SlipHeader HeaderOf(const BenchSlip& slip);
void WriteSlip(Office& office, const BenchSlip& slip, int items = 0);

/// "20260001" for 1, and so on.
QString SlipNumber(int number);
