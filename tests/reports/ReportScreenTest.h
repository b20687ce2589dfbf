#pragma once

#include "reports/ReportTest.h"
#include "support/ScreenTest.h"

#include <QLineEdit>
#include <QPushButton>

/// A report screen, its range entered with real keys.
class ReportScreenTest : public ScreenTest {
protected:
    explicit ReportScreenTest(ScreenName screenName) : report(screenName) { WriteMasterFiles(); }

    QString Date(int index) {
        return Find<QLineEdit>(report, QStringLiteral("DTPicker1(%1)").arg(index))->text();
    }

    QString Range() { return Date(0) + QStringLiteral(" - ") + Date(1); }

    void TypeDate(int index, const QString& text) {
        auto* picker = Find<QLineEdit>(report, QStringLiteral("DTPicker1(%1)").arg(index));
        picker->setFocus();
        picker->selectAll();
        Type(picker, text);
        Press(picker, Qt::Key_Return);
    }

    QString TipOf(const QString& name) { return Find<QWidget>(report, name)->toolTip(); }
    QString CaptionOf(const QString& name) { return Find<QAbstractButton>(report, name)->text(); }
    bool IsEnabled(const QString& name) { return Find<QWidget>(report, name)->isEnabled(); }

    /// Presses the key of a button with Alt.
    void PressAlt(Qt::Key key) {
        ASSERT_TRUE(QTest::qWaitForWindowActive(screens.Find(report)));
        QTest::keyClick(screens.Find(report), key, Qt::AltModifier);
    }

    const ScreenName report;
    const ScreenName menu = ScreenName::frmStartup;
    const QString invalid = QStringLiteral("Your Calendar Selection is Invalid");
};
