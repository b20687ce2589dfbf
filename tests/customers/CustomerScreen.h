#pragma once

#include "customers/SampleCustomers.h"
#include "platform/EntryField.h"
#include "support/ScreenTest.h"

#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QListView>

/// The customer screen over the customers of a test.
class CustomerScreen : public ScreenTest {
protected:
    using ScreenTest::ScreenTest;

    static constexpr ScreenName screen = ScreenName::frmCustomer;
    const QString customerFile = QStringLiteral("CustomerData.txt");
    const QString contractFile = QStringLiteral("ContractInfo.txt");
    const QString cycleFile = QStringLiteral("CycleInfo.txt");

    void WriteCustomers(const QList<SampleCustomer>& records) {
        WriteMasterFiles();
        QByteArray bytes;
        for (const SampleCustomer& record : records)
            bytes += record.Bytes();
        folder.Write(customerFile, bytes);
        folder.Write(contractFile, Siblings(int(records.size()), 386));
        folder.Write(cycleFile, Siblings(int(records.size()), 69));
    }
    /// Three customers: a business, a person, a business.
    void OpenThree(qint16 menuChoice = 2) {
        WriteCustomers({SampleCustomer{}, Person("Lee", "Ann", "1002", "Mr/Mrs"),
                        SampleCustomer{.account = "77", .businessName = "Anvil Works"}});
        Open(menuChoice);
    }
    void OpenEmpty() {
        WriteMasterFiles();
        folder.Remove(customerFile);
        user.ExpectMessage(
            QStringLiteral("Your Customer File is Empty\nCreate your First Customer Now"),
            QStringLiteral("Create Customers"));
        Open(2);
    }
    void Open(qint16 menuChoice) {
        office.MenuChoice = menuChoice;
        screens.Show(screen);
        ASSERT_TRUE(QTest::qWaitForWindowActive(screens.Find(screen)));
    }

    EntryField* Text(int index) {
        return Find<EntryField>(screen, QStringLiteral("txtCustomer(%1)").arg(index));
    }
    QString Shown(int index) { return Text(index)->text(); }
    QComboBox* Combo(const QString& name) { return Find<QComboBox>(screen, name); }
    QAbstractButton* Button(const QString& name) { return Find<QAbstractButton>(screen, name); }
    QAction* Item(const QString& name) { return Find<QAction>(screen, name); }
    QWidget* Control(const QString& name) { return Find<QWidget>(screen, name); }
    QString Where() { return Find<QLabel>(screen, QStringLiteral("where"))->text(); }
    QString Focused() {
        const QWidget* focus = screens.Find(screen)->focusWidget();
        return focus ? focus->objectName() : QString();
    }
    void Enter(int index, const QString& text) {
        Text(index)->setFocus();
        Text(index)->selectAll();
        Type(Text(index), text);
    }
    void ChooseFromPopup(int row) {
        QComboBox* accounts = Combo(QStringLiteral("cboAccounts"));
        accounts->showPopup();
        QAbstractItemView* list = accounts->view();
        const QRect place = list->visualRect(list->model()->index(row, 0));
        // The list takes no click within the time of a double click after it has opened.
        QTest::qWait(QApplication::doubleClickInterval() + 50);
        QTest::mouseMove(list->viewport(), place.center());
        QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, place.center());
    }
    QByteArray CustomerOnDisk(int number) const {
        return folder.Read(customerFile).mid((number - 1) * 328, 328);
    }
};
