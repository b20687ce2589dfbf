#include "customers/SampleCustomers.h"
#include "platform/DatePicker.h"
#include "platform/EntryField.h"
#include "platform/Grid.h"
#include "slips/DeliveryItemsPanel.h"
#include "slips/DeliveryWriting.h"
#include "slips/frmDelivery.h"
#include "startup/Office.h"
#include "support/Days.h"
#include "support/ScreenTest.h"

#include <QAction>
#include <QApplication>
#include <QCalendarWidget>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QLabel>
#include <QListView>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace {

constexpr ScreenName delivery = ScreenName::frmDelivery;

const QString counterFile = u"NQDeliveryNo.txt"_s;
const QString headers = u"TesselDelivery/Deliveries/"_s;
const QString itemFiles = u"TesselDelivery/DeliveryItems/"_s;
const QString templateFiles = u"Templates/Deliveries/"_s;

} // namespace

class DeliveryScreen : public ScreenTest {
protected:
    DeliveryScreen() {
        WriteMasterFiles();
        PutDeliveryBusiness(folder, office);
    }

    void Open() {
        screens.Show(delivery);
        ASSERT_TRUE(QTest::qWaitForWindowActive(screens.Find(delivery)));
        grid = Find<Grid>(delivery, u"fgDelivery"_s);
    }
    void OpenItems() {
        Open();
        ClickOn(u"cmdInvoice(0)"_s);
    }

    EntryField* Text(const QString& name) { return Find<EntryField>(delivery, name); }
    QString Shown(const QString& name) { return Text(name)->text(); }
    QString Caption(const QString& name) { return Find<QLabel>(delivery, name)->text(); }
    QAbstractButton* Button(const QString& name) { return Find<QAbstractButton>(delivery, name); }
    QListView* List(const QString& name) { return Find<QListView>(delivery, name); }
    QString Selected(const QString& name) { return List(name)->currentIndex().data().toString(); }
    DatePicker* Date() { return Find<DatePicker>(delivery, u"DTShip"_s); }
    QComboBox* Descriptions() { return Find<QComboBox>(delivery, u"cboNonPricedDescription"_s); }
    QAction* Menu(const QString& name) { return Find<QAction>(delivery, name); }
    bool IsVisible(const QString& name) { return Find<QWidget>(delivery, name)->isVisible(); }
    QString Focused() {
        const QWidget* focus = screens.Find(delivery)->focusWidget();
        return focus ? focus->objectName() : QString();
    }
    /// The panels that show.
    QStringList Panels() {
        QStringList shown;
        for (const QString& panel : {u"fraSetup"_s, u"fraItems"_s, u"fraNonPriced"_s, u"fraMulti"_s,
                                     u"fraCustomer"_s, u"fraTemplates"_s}) {
            if (IsVisible(panel))
                shown += panel;
        }
        return shown;
    }

    void ClickOn(const QString& button) { Click(delivery, button); }
    void ClickEntry(const QString& list, int place) {
        List(list)->scrollTo(List(list)->model()->index(place, 0));
        const QRect entry = List(list)->visualRect(List(list)->model()->index(place, 0));
        QTest::mouseClick(List(list)->viewport(), Qt::LeftButton, Qt::NoModifier, entry.center());
    }
    void PressFocused(Qt::Key key) { Press(screens.Find(delivery)->focusWidget(), key); }
    /// Alt and a letter of the menu bar.
    void PressMenu(Qt::Key letter) {
        QTest::keyClick(screens.Find(delivery)->focusWidget(), letter, Qt::AltModifier);
    }
    /// Alt alone leads into the menu bar, the arrow key to the entry, Enter takes it.
    void WalkMenuBarTo(int place) {
        QTest::keyClick(screens.Find(delivery)->focusWidget(), Qt::Key_Alt);
        QMenuBar* bar = screens.Find(delivery)->menuBar();
        ASSERT_TRUE(bar->hasFocus());
        for (int i = 0; i < place; ++i)
            QTest::keyClick(bar, Qt::Key_Right);
        QTest::keyClick(bar, Qt::Key_Return);
    }
    void TypeFocused(const QString& text) { Type(screens.Find(delivery)->focusWidget(), text); }
    void Enter(const QString& field, const QString& text) {
        Text(field)->setFocus();
        Text(field)->selectAll();
        Type(Text(field), text);
    }
    void Paste(const QString& field, const QString& text) {
        QApplication::clipboard()->setText(text);
        Text(field)->setFocus();
        Text(field)->selectAll();
        QTest::keyClick(Text(field), Qt::Key_V, Qt::ControlModifier);
    }
    void Post(int item, const QString& units) {
        ClickEntry(u"lstItems"_s, item);
        TypeFocused(units);
        ClickOn(u"cmdPost(1)"_s);
    }
    QStringList Row(int row) const {
        QStringList cells;
        for (int column = 0; column < 4; ++column)
            cells += office.deliveryItems.fgDelivery.Text(row, column);
        return cells;
    }
    QAction* Popup() {
        auto* popup = Find<QMenu>(delivery, u"mnupopup"_s);
        return popup->isVisible() ? popup->actions().front() : nullptr;
    }
    void ClosePopup() { Find<QMenu>(delivery, u"mnupopup"_s)->close(); }
    void RightClick(int row, int column) {
        const QPoint place = grid->visualRect(grid->model()->index(row - 1, column)).center();
        QTest::mousePress(grid->viewport(), Qt::RightButton, Qt::NoModifier, place);
        QContextMenuEvent menu(QContextMenuEvent::Mouse, place,
                               grid->viewport()->mapToGlobal(place));
        QApplication::sendEvent(grid->viewport(), &menu);
    }
    void ExpectDeletion(const QString& description, Answer answer = Answer::Yes) {
        user.ExpectQuestion(u"Delete item "_s + description + u" from Invoice?"_s,
                            u"Item Deletion"_s, answer);
    }
    void ExpectReloaded() { user.ExpectMessage(u"The Delivery Number has been reloaded"_s); }

    Grid* grid = nullptr;
};

// Texts.

TEST_F(DeliveryScreen, ControlsCarryTheirTexts) {
    Open();
    EXPECT_EQ(screens.Find(delivery)->windowTitle(), u"Delivery Creation"_s);
    const std::pair<QString, QString> captions[] = {
        {u"cmdInvoice(0)"_s, u"Continue......"_s},
        {u"cmdInvoice(1)"_s, u"&Menu"_s},
        {u"cmdInvoice(2)"_s, u"Reload Next Delivery Slip"_s},
        {u"cmdInvoice(3)"_s, u"Close/Accept"_s},
        {u"cmdInvoice(4)"_s, u"Enter New Delivery Slip No"_s},
        {u"cmdShipToAddress(0)"_s, u"Same as Sold to"_s},
        {u"cmdShipToAddress(1)"_s, u"Clear Deliver To"_s},
        {u"optRecurring(0)"_s, u"This Delivery is Recurring"_s},
        {u"optRecurring(1)"_s, u"This is a one-time Delivery"_s},
        {u"ckMulti(1)"_s, u"Sunday"_s},
        {u"ckMulti(7)"_s, u"Saturday"_s},
        {u"ckCapacity"_s, u"Ignore Vehicle Capacity"_s},
        {u"ckProduct"_s, u"Ignore Specific Product"_s},
        {u"cmdPost(0)"_s, u"Post to Slip"_s},
        {u"cmdPost(1)"_s, u"Post to Slip"_s},
        {u"cmdPost(2)"_s, u"Exit w/o Posting"_s},
        {u"cmdRedo"_s, u"&ReDo"_s},
        {u"cmdStore"_s, u"Store Delivery..........."_s},
        {u"cmdExit"_s, u"Return to &Menu"_s},
        {u"cmdTemplate(0)"_s, u"Load"_s},
        {u"cmdTemplate(1)"_s, u"Delete"_s},
        {u"cmdTemplate(2)"_s, u"Save as Template"_s},
    };
    for (const auto& [name, caption] : captions)
        EXPECT_EQ(Button(name)->text(), caption) << name.toStdString();
    EXPECT_EQ(Button(u"cmdInvoice(0)"_s)->toolTip(), u"Create this Delivery"_s);
    EXPECT_EQ(Caption(u"lblInvoiceNo"_s), u"Next Delivery Slip ->"_s);
    EXPECT_EQ(Caption(u"Label3(5)"_s), u"Select Delivery Frequency"_s);
    const QStringList texts = TextsIn(screens.Find(delivery));
    for (const QString& text :
         {u"Delivery Setup"_s, u"Sold To"_s, u"Deliver To"_s, u"Account Data"_s, u"Slip No"_s,
          u"To the Attn of: (Optional)"_s, u"Delivery Date"_s, u"Delivery Time"_s,
          u"Load to Vehicle"_s, u"Select Multiple Days per Week"_s,
          u"Enter a Reference (Optional) (PO, etc)"_s, u"Create your own numbering sequence"_s,
          u"(Must be numeric with"_s, u"no special characters)"_s, u"Delivery Templates"_s})
        EXPECT_TRUE(texts.contains(text)) << text.toStdString();
}

TEST_F(DeliveryScreen, EveryButtonAnswersToEnter) {
    Open();
    for (const auto* button : screens.Find(delivery)->findChildren<QPushButton*>())
        EXPECT_TRUE(button->autoDefault()) << button->objectName().toStdString();
}

TEST_F(DeliveryScreen, LettersOfTheControlsThatShowAreUnique) {
    Open();
    const auto letters = [this] {
        QStringList found;
        for (const auto* button : screens.Find(delivery)->findChildren<QAbstractButton*>()) {
            if (button->isVisible() && !button->shortcut().isEmpty())
                found += button->shortcut().toString();
        }
        for (const QAction* item : screens.Find(delivery)->menuBar()->actions())
            found += QKeySequence::mnemonic(item->text()).toString();
        return found;
    };
    EXPECT_EQ(letters(), (QStringList{u"Alt+M"_s, u"Alt+A"_s, u"Alt+D"_s, u"Alt+I"_s, u"Alt+N"_s}));
    ClickOn(u"cmdInvoice(0)"_s);
    QStringList ofItems = letters();
    EXPECT_EQ(ofItems.size(), 6);
    EXPECT_EQ(ofItems.removeDuplicates(), 0);
}

TEST_F(DeliveryScreen, EveryFieldHasANameForScreenReaders) {
    Open();
    for (auto* control : screens.Find(delivery)->findChildren<QWidget*>()) {
        const bool isEntry = qobject_cast<EntryField*>(control) ||
                             qobject_cast<QListView*>(control) ||
                             qobject_cast<DatePicker*>(control);
        if (!isEntry || control->objectName().isEmpty() ||
            !control->objectName().contains(QRegularExpression(u"^(txt|lst|flst|DT)"_s)))
            continue;
        bool hasLabel = !control->accessibleName().isEmpty();
        for (const auto* label : screens.Find(delivery)->findChildren<QLabel*>())
            hasLabel = hasLabel || (label->buddy() == control && !label->text().isEmpty());
        EXPECT_TRUE(hasLabel) << control->objectName().toStdString();
    }
}

TEST_F(DeliveryScreen, ScreenIsWholeOnASmallDesktop) {
    folder.Write(templateFiles + u"Week.txt"_s, {});
    Open();
    Screen* screen = screens.Find(delivery);
    screen->resize(1024, 768);
    ClickOn(u"optRecurring(0)"_s);
    ClickEntry(u"lstFrequency"_s, 7);
    QTest::qWait(0);
    EXPECT_EQ(screen->size(), QSize(1024, 768));
    const auto* body = Find<QWidget>(delivery, u"body"_s);
    EXPECT_LE(body->width(), body->parentWidget()->width());
    EXPECT_LE(body->height(), body->parentWidget()->height());
    ClickOn(u"cmdInvoice(3)"_s);
    user.ExpectMessage(
        u" The 1st Delivery will be made on 3/16/2026\nand will re-occurr Multiple Week Days"_s);
    ClickOn(u"cmdInvoice(0)"_s);
    QTest::qWait(0);
    EXPECT_EQ(screen->size(), QSize(1024, 768));
    EXPECT_LE(body->width(), body->parentWidget()->width());
}

TEST_F(DeliveryScreen, GoingBetweenItsStagesDoesNotWidenTheWindow) {
    Open();
    Screen* screen = screens.Find(delivery);
    const QSize small(940, 700);
    screen->resize(small);
    for (const QString& stage : {u"mnuItems"_s, u"mnuSetup"_s, u"mnuItems"_s}) {
        Menu(stage)->trigger();
        QTest::qWait(0);
        EXPECT_EQ(screen->size(), small) << stage.toStdString();
    }
}

TEST_F(DeliveryScreen, TabFollowsTheEye) {
    folder.Write(templateFiles + u"Week.txt"_s, {});
    Open();
    const auto walk = [this](const QStringList& order) {
        Find<QWidget>(delivery, order.front())->setFocus();
        for (const QString& name : order) {
            EXPECT_EQ(Focused(), name);
            PressFocused(Qt::Key_Tab);
        }
    };
    ClickOn(u"optRecurring(0)"_s);
    walk({u"txtShipto(0)"_s,
          u"txtShipto(1)"_s,
          u"txtShipto(2)"_s,
          u"txtShipto(3)"_s,
          u"txtShipto(4)"_s,
          u"txtShipto(5)"_s,
          u"txtShipto(6)"_s,
          u"cmdShipToAddress(0)"_s,
          u"cmdShipToAddress(1)"_s,
          u"txtDeliveryNo"_s,
          u"txtReference"_s,
          u"optRecurring(0)"_s,
          u"lstFrequency"_s,
          u"DTShip"_s,
          u"lstTime"_s,
          u"lstVehicles"_s,
          u"ckCapacity"_s,
          u"ckProduct"_s,
          u"flstDeliveryTemplates"_s,
          u"cmdTemplate(0)"_s,
          u"cmdTemplate(1)"_s,
          u"cmdInvoice(1)"_s,
          u"cmdInvoice(4)"_s,
          u"cmdInvoice(2)"_s,
          u"cmdInvoice(0)"_s});
    user.ExpectMessage(u" The 1st Delivery will be made on 3/9/2026\nand will re-occurr Weekly"_s);
    ClickOn(u"cmdInvoice(0)"_s);
    walk({u"lstItems"_s, u"txtUnits"_s, u"cmdPost(1)"_s, u"fgDelivery"_s,
          u"flstDeliveryTemplates"_s, u"cmdTemplate(0)"_s, u"cmdTemplate(1)"_s, u"cmdExit"_s,
          u"cmdTemplate(2)"_s, u"cmdRedo"_s, u"cmdStore"_s});
    Menu(u"mnuNonInvoiced"_s)->trigger();
    walk({u"cboNonPricedDescription"_s, u"txtNonPriced"_s, u"cmdPost(0)"_s, u"cmdPost(2)"_s,
          u"fgDelivery"_s});
}

// A new slip.

TEST_F(DeliveryScreen, OpensOnTheSetupOfANewSlipForTheCustomer) {
    folder.Write(counterFile, "20260014\r\n");
    Open();
    EXPECT_EQ(Panels(), QStringList{u"fraSetup"_s});
    EXPECT_EQ(Focused(), u"txtShipto(6)"_s);
    EXPECT_EQ(Shown(u"txtDeliveryNo"_s), u"20260014"_s);
    EXPECT_TRUE(IsVisible(u"lblInvoiceNo"_s));
    EXPECT_TRUE(Button(u"cmdInvoice(2)"_s)->isEnabled());
    EXPECT_EQ(Date()->Date(), QDate(2026, 3, 9));
    EXPECT_EQ(Selected(u"lstTime"_s), u"08:00am"_s);
    EXPECT_EQ(Selected(u"lstVehicles"_s), u"Flatbed Truck"_s);
    EXPECT_EQ(Caption(u"lblAcctNo"_s), u"4471"_s);
    const QStringList address = {u"Corner Grocery"_s, u"12 Mill Road"_s, QString(),
                                 u"Springfield"_s,    u"IL"_s,           u"62704"_s};
    for (int i = 0; i < 6; ++i) {
        EXPECT_EQ(Caption(u"lblCustomer(%1)"_s.arg(i)), address[i]);
        EXPECT_EQ(Caption(u"lblCustomer(%1)"_s.arg(i + 6)), address[i]);
        EXPECT_EQ(Shown(u"txtShipto(%1)"_s.arg(i)), address[i]);
    }
    EXPECT_EQ(Shown(u"txtReference"_s), QString());
    EXPECT_TRUE(Button(u"optRecurring(1)"_s)->isChecked());
    EXPECT_FALSE(List(u"lstFrequency"_s)->isEnabled());
    EXPECT_FALSE(IsVisible(u"Label3(5)"_s));
    EXPECT_EQ(Caption(u"lblShipping(1)"_s), u"Delivery Date"_s);
    EXPECT_EQ(List(u"lstTime"_s)->model()->rowCount(), 44);
    EXPECT_EQ(List(u"lstFrequency"_s)->model()->rowCount(), 8);
}

TEST_F(DeliveryScreen, CustomerScreenLeadsHere) {
    const SampleCustomer baker{.account = "4472",
                               .businessName = "Mill Bakery",
                               .address1 = "3 Canal Street",
                               .address2 = "Apt 9",
                               .city = "Riverton",
                               .state = "IN",
                               .zip = "62561",
                               .postalOrAddress4 = "62561"};
    folder.Write(u"CustomerData.txt"_s, baker.Bytes());
    folder.Write(u"ContractInfo.txt"_s, Siblings(1, 386));
    folder.Write(u"CycleInfo.txt"_s, Siblings(1, 69));
    office.MenuChoice = 5;
    screens.Show(ScreenName::frmCustomer);
    Click(ScreenName::frmCustomer, u"cmdCustomer(1)"_s);
    EXPECT_TRUE(IsShown(delivery));
    EXPECT_FALSE(IsShown(ScreenName::frmCustomer));
    EXPECT_EQ(Caption(u"lblAcctNo"_s), u"4472"_s);
    const QStringList address = {u"Mill Bakery"_s, u"3 Canal Street"_s, u"Apt 9"_s, u"Riverton"_s,
                                 u"IN"_s,          u"62561"_s};
    for (int i = 0; i < 6; ++i) {
        EXPECT_EQ(Caption(u"lblCustomer(%1)"_s.arg(i + 6)), address[i]);
        EXPECT_EQ(Shown(u"txtShipto(%1)"_s.arg(i)), address[i]);
    }
}

TEST_F(DeliveryScreen, MenuGoesBackAndNothingIsWritten) {
    Open();
    const auto before = folder.Contents();
    ClickOn(u"cmdInvoice(1)"_s);
    EXPECT_TRUE(IsShown(ScreenName::frmStartup));
    EXPECT_FALSE(IsShown(delivery));
    EXPECT_EQ(folder.Contents(), before);
}

TEST_F(DeliveryScreen, NewVehiclesAreThereAndTheFirstIsSelected) {
    Open();
    ClickEntry(u"lstVehicles"_s, 1);
    ClickOn(u"cmdInvoice(1)"_s);
    folder.Write(u"Vehicles.txt"_s, VehicleBytes("Bus", "9", trueBytes, "lbs", "N/A") +
                                        VehicleBytes("Van", "8", trueBytes, "lbs", "N/A"));
    office.fleet.LoadVehicles();
    Open();
    EXPECT_EQ(Selected(u"lstVehicles"_s), u"Bus"_s);
    EXPECT_EQ(office.deliveryItems.LoadCapacity, 9.0F);
}

TEST_F(DeliveryScreen, InternationalStyleHasALineForEachPartOfTheAddress) {
    office.deliveryCustomer.Address2 = u"Hof 3"_s;
    Open();
    const auto top = [this](const QString& name) {
        return Find<QWidget>(delivery, name)->mapTo(screens.Find(delivery), QPoint()).y();
    };
    EXPECT_EQ(top(u"lblCustomer(7)"_s), top(u"lblCustomer(8)"_s));
    EXPECT_EQ(top(u"lblCustomer(9)"_s), top(u"lblCustomer(11)"_s));
    EXPECT_EQ(top(u"txtShipto(4)"_s), top(u"txtShipto(5)"_s));
    office.settings.cmdAddress = u"International Style Address"_s;
    screens.Show(delivery);
    QTest::qWait(0);
    EXPECT_LT(top(u"lblCustomer(7)"_s), top(u"lblCustomer(8)"_s));
    EXPECT_LT(top(u"lblCustomer(9)"_s), top(u"lblCustomer(11)"_s));
    EXPECT_LT(top(u"txtShipto(4)"_s), top(u"txtShipto(5)"_s));
}

// The number.

TEST_F(DeliveryScreen, OwnNumberIsTypedAfterTheButton) {
    Open();
    ClickOn(u"cmdInvoice(4)"_s);
    EXPECT_EQ(Focused(), u"txtDeliveryNo"_s);
    EXPECT_EQ(Shown(u"txtDeliveryNo"_s), QString());
    TypeFocused(u"5a00"_s);
    EXPECT_EQ(Shown(u"txtDeliveryNo"_s), u"500"_s);
    EXPECT_EQ(user.Beeps, 1);
    ClickOn(u"cmdInvoice(2)"_s);
    EXPECT_EQ(Shown(u"txtDeliveryNo"_s), u"20260001"_s);
}

TEST_F(DeliveryScreen, NumberLeftEmptyIsReloaded) {
    Open();
    Text(u"txtDeliveryNo"_s)->setFocus();
    Text(u"txtDeliveryNo"_s)->clear();
    ExpectReloaded();
    PressFocused(Qt::Key_Tab);
    EXPECT_EQ(Shown(u"txtDeliveryNo"_s), u"20260001"_s);
}

TEST_F(DeliveryScreen, LetterOfAButtonLeavesAnEmptyNumberAsAClickDoes) {
    Open();
    Text(u"txtDeliveryNo"_s)->setFocus();
    Text(u"txtDeliveryNo"_s)->clear();
    ExpectReloaded();
    QTest::keyClick(screens.Find(delivery), Qt::Key_M, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return IsShown(ScreenName::frmStartup); }));
}

TEST_F(DeliveryScreen, PastedNumberComesInUpToTheFirstCharacterRefused) {
    Open();
    Paste(u"txtDeliveryNo"_s, u"77/8"_s);
    EXPECT_EQ(Shown(u"txtDeliveryNo"_s), u"77"_s);
    EXPECT_EQ(user.Beeps, 1);
}

TEST_F(DeliveryScreen, PointInTheNumberBeepsAndComesIn) {
    Open();
    Enter(u"txtDeliveryNo"_s, u"7.5"_s);
    EXPECT_EQ(Shown(u"txtDeliveryNo"_s), u"7.5"_s);
    EXPECT_EQ(user.Beeps, 1);
}

TEST_F(DeliveryScreen, ContinueWithoutANumberComesBackToIt) {
    Open();
    Text(u"txtDeliveryNo"_s)->clear();
    user.ExpectMessage(u"You have not entered an Delivery Number"_s);
    ClickOn(u"cmdInvoice(0)"_s);
    EXPECT_EQ(Focused(), u"txtDeliveryNo"_s);
    EXPECT_EQ(Panels(), QStringList{u"fraSetup"_s});
}

// Deliver to and reference.

TEST_F(DeliveryScreen, ButtonsClearAndFillTheDeliverToAddress) {
    Open();
    ClickOn(u"cmdShipToAddress(1)"_s);
    for (int i = 0; i < 6; ++i)
        EXPECT_EQ(Shown(u"txtShipto(%1)"_s.arg(i)), QString());
    EXPECT_EQ(Focused(), u"txtShipto(0)"_s);
    user.ExpectMessage(u"You have not entered Deliver to Data"_s);
    ClickOn(u"cmdInvoice(0)"_s);
    EXPECT_EQ(Focused(), u"txtShipto(0)"_s);
    EXPECT_EQ(Panels(), QStringList{u"fraSetup"_s});
    ClickOn(u"cmdShipToAddress(0)"_s);
    EXPECT_EQ(Shown(u"txtShipto(3)"_s), u"Springfield"_s);
}

TEST_F(DeliveryScreen, QuoteIsKeptOutOfTheDeliverToAddress) {
    Open();
    for (int i = 0; i < 7; ++i) {
        const QString field = u"txtShipto(%1)"_s.arg(i);
        user.ExpectMessage(u"This character, (\") is invalid for this field"_s,
                           u"Invalid Key entry"_s);
        Enter(field, u"A\"b, c"_s);
        EXPECT_EQ(Shown(field), u"Ab, c"_s);
    }
    EXPECT_EQ(user.Beeps, 7);
}

TEST_F(DeliveryScreen, ReferenceLeftEmptyIsPrepared) {
    Open();
    Text(u"txtReference"_s)->setFocus();
    PressFocused(Qt::Key_Tab);
    EXPECT_EQ(Shown(u"txtReference"_s), u"Prepared 3/9/2026"_s);
    Enter(u"txtReference"_s, u"PO 7"_s);
    PressFocused(Qt::Key_Tab);
    EXPECT_EQ(Shown(u"txtReference"_s), u"PO 7"_s);
}

// Recurrence.

TEST_F(DeliveryScreen, RecurringOpensTheFrequenciesOnWeekly) {
    Open();
    ClickOn(u"optRecurring(0)"_s);
    EXPECT_TRUE(List(u"lstFrequency"_s)->isEnabled());
    EXPECT_EQ(Selected(u"lstFrequency"_s), u"Weekly"_s);
    EXPECT_TRUE(IsVisible(u"Label3(5)"_s));
    EXPECT_EQ(Caption(u"lblShipping(1)"_s), u"1st Delivery Date"_s);
    ClickEntry(u"lstFrequency"_s, 4);
    EXPECT_EQ(office.deliveryForm.SlipFrequency, u"0000004"_s);
    ClickOn(u"optRecurring(1)"_s);
    EXPECT_FALSE(List(u"lstFrequency"_s)->isEnabled());
    EXPECT_FALSE(IsVisible(u"Label3(5)"_s));
    EXPECT_EQ(Caption(u"lblShipping(1)"_s), u"Delivery Date"_s);
    EXPECT_EQ(office.deliveryForm.SlipFrequency, u"0000004"_s);
}

TEST_F(DeliveryScreen, ClickOnTheOptionThatStandsMakesTheSlipRecurringAgain) {
    Open();
    ClickOn(u"optRecurring(0)"_s);
    screens.Show(delivery);
    EXPECT_TRUE(Button(u"optRecurring(0)"_s)->isChecked());
    EXPECT_FALSE(office.deliveryForm.SlipIsRecurring);
    ClickOn(u"optRecurring(0)"_s);
    EXPECT_TRUE(office.deliveryForm.SlipIsRecurring);
}

TEST_F(DeliveryScreen, ArrowKeyBetweenTheOptionsIsAClick) {
    Open();
    Button(u"optRecurring(1)"_s)->setFocus();
    PressFocused(Qt::Key_Up);
    EXPECT_TRUE(Button(u"optRecurring(0)"_s)->isChecked());
    EXPECT_TRUE(office.deliveryForm.SlipIsRecurring);
}

TEST_F(DeliveryScreen, FrequencyIsChosenByTyping) {
    Open();
    ClickOn(u"optRecurring(0)"_s);
    List(u"lstFrequency"_s)->setFocus();
    TypeFocused(u"Semi"_s);
    EXPECT_EQ(office.deliveryForm.SlipFrequency, u"0000005"_s);
    EXPECT_EQ(Focused(), u"lstFrequency"_s);
}

TEST_F(DeliveryScreen, WeekDaysAreTickedAndAccepted) {
    clock.Date = QDate(2026, 3, 10);
    Open();
    ClickOn(u"optRecurring(0)"_s);
    ClickEntry(u"lstFrequency"_s, 7);
    EXPECT_EQ(Panels(), (QStringList{u"fraSetup"_s, u"fraMulti"_s}));
    EXPECT_FALSE(Button(u"ckMulti(1)"_s)->isEnabled());
    EXPECT_FALSE(Button(u"ckMulti(7)"_s)->isEnabled());
    ClickOn(u"ckMulti(2)"_s);
    ClickOn(u"ckMulti(5)"_s);
    ClickOn(u"cmdInvoice(3)"_s);
    EXPECT_EQ(Panels(), QStringList{u"fraSetup"_s});
    EXPECT_EQ(office.deliveryForm.SlipFrequency, u"0100100"_s);
    EXPECT_EQ(Date()->Date(), QDate(2026, 3, 16));
    EXPECT_EQ(Focused(), u"DTShip"_s);
    EXPECT_EQ(user.Beeps, 1);
}

TEST_F(DeliveryScreen, ClickOnTheMultipleDaysThatStandBringsTheBoxesUpAgain) {
    Open();
    ClickOn(u"optRecurring(0)"_s);
    ClickEntry(u"lstFrequency"_s, 7);
    ClickOn(u"ckMulti(2)"_s);
    ClickOn(u"cmdInvoice(3)"_s);
    ClickEntry(u"lstFrequency"_s, 7);
    EXPECT_EQ(Panels(), (QStringList{u"fraSetup"_s, u"fraMulti"_s}));
    EXPECT_FALSE(Button(u"ckMulti(2)"_s)->isChecked());
    ClickEntry(u"lstFrequency"_s, 0);
    EXPECT_EQ(Panels(), QStringList{u"fraSetup"_s});
}

TEST_F(DeliveryScreen, EntryOfTheMultipleDaysStaysInSight) {
    Open();
    screens.Find(delivery)->resize(1024, 768);
    ClickOn(u"optRecurring(0)"_s);
    List(u"lstFrequency"_s)->setFocus();
    PressFocused(Qt::Key_End);
    EXPECT_EQ(Selected(u"lstFrequency"_s), u"Multiple Week Days"_s);
    const auto* list = List(u"lstFrequency"_s);
    EXPECT_TRUE(list->viewport()->rect().contains(list->visualRect(list->currentIndex())));
}

// The date.

TEST_F(DeliveryScreen, TypedDateIsMovedToAWorkDay) {
    Open();
    Date()->setFocus();
    Date()->selectAll();
    TypeFocused(u"3/14/2026"_s);
    PressFocused(Qt::Key_Return);
    EXPECT_EQ(Date()->Date(), QDate(2026, 3, 16));
    EXPECT_NE(Focused(), u"DTShip"_s);
}

TEST_F(DeliveryScreen, TypedDateBeforeTodayIsInvalid) {
    Open();
    Date()->setFocus();
    Date()->selectAll();
    TypeFocused(u"3/2/2026"_s);
    user.ExpectMessage(u"Your Calendar Selection is Invalid"_s);
    PressFocused(Qt::Key_Tab);
    EXPECT_EQ(Date()->Date(), QDate(2026, 3, 9));
}

TEST_F(DeliveryScreen, TextThatIsNoDateIsTakenBackWithABeep) {
    Open();
    Date()->setFocus();
    Date()->selectAll();
    TypeFocused(u"soon"_s);
    PressFocused(Qt::Key_Tab);
    EXPECT_EQ(Date()->text(), u"3/9/2026"_s);
    EXPECT_EQ(user.Beeps, 1);
}

TEST_F(DeliveryScreen, ClickOnADateThatHasPassedOverNightTells) {
    Open();
    clock.Date = QDate(2026, 3, 10);
    user.ExpectMessage(u"Your Calendar Selection is Invalid"_s);
    QTest::mouseClick(Date(), Qt::LeftButton);
    EXPECT_EQ(Date()->Date(), QDate(2026, 3, 9));
}

TEST_F(DeliveryScreen, DateIsEditedWithTheMouse) {
    Open();
    const QPoint start(4, Date()->height() / 2);
    QTest::mouseClick(Date(), Qt::LeftButton, Qt::NoModifier, start);
    Date()->setFocus();
    EXPECT_EQ(Date()->cursorPosition(), 0);
    PressFocused(Qt::Key_Delete);
    TypeFocused(u"4"_s);
    EXPECT_EQ(Date()->text(), u"4/9/2026"_s);
    QTest::mouseClick(Date(), Qt::LeftButton, Qt::NoModifier, start);
    EXPECT_EQ(Date()->text(), u"4/9/2026"_s);
    EXPECT_EQ(Date()->cursorPosition(), 0);
    PressFocused(Qt::Key_Tab);
    EXPECT_EQ(office.deliveryForm.DTShip, QDate(2026, 4, 9));
}

TEST_F(DeliveryScreen, HalfADateThatIsLeftIsReplacedByTheDateThatStands) {
    Open();
    Date()->setFocus();
    Date()->selectAll();
    TypeFocused(u"3/1"_s);
    screens.Find(delivery)->setFocus(Qt::OtherFocusReason);
    EXPECT_EQ(Date()->text(), u"3/9/2026"_s);
}

TEST_F(DeliveryScreen, CalendarOffersNoDateBeforeToday) {
    Open();
    Date()->setFocus();
    PressFocused(Qt::Key_F4);
    auto* calendar = Find<QCalendarWidget>(delivery, u"calendar"_s);
    EXPECT_EQ(calendar->minimumDate(), QDate(2026, 3, 9));
    ClickDay(*calendar, QDate(2026, 3, 21));
    EXPECT_EQ(Date()->Date(), QDate(2026, 3, 23));
}

TEST_F(DeliveryScreen, CalendarClosedWithoutAPickMovesADateOffADayOff) {
    Open();
    ClickOn(u"optRecurring(0)"_s);
    office.deliveryForm.ckMultiEnabled.fill(true);
    ClickEntry(u"lstFrequency"_s, 7);
    ClickOn(u"ckMulti(7)"_s);
    ClickOn(u"cmdInvoice(3)"_s);
    EXPECT_EQ(Date()->Date(), QDate(2026, 3, 14));
    PressFocused(Qt::Key_F4);
    Find<QCalendarWidget>(delivery, u"calendar"_s)->window()->close();
    EXPECT_TRUE(QTest::qWaitFor([&] { return Date()->Date() == QDate(2026, 3, 16); }));
}

// Time and vehicle.

TEST_F(DeliveryScreen, TimeIsFoundByTyping) {
    Open();
    List(u"lstTime"_s)->setFocus();
    TypeFocused(u"02.1"_s);
    EXPECT_EQ(Selected(u"lstTime"_s), u"02.15pm"_s);
}

TEST_F(DeliveryScreen, VehicleIsTakenWithItsCapacityByKeyAndClick) {
    Open();
    List(u"lstVehicles"_s)->setFocus();
    PressFocused(Qt::Key_Down);
    EXPECT_EQ(office.deliveryItems.LoadCapacity, 0.0F);
    PressFocused(Qt::Key_Up);
    EXPECT_EQ(office.deliveryItems.LoadCapacity, 200.0F);
    ClickOn(u"ckCapacity"_s);
    EXPECT_EQ(office.deliveryItems.LoadCapacity, 200.0F);
    ClickEntry(u"lstVehicles"_s, 0);
    EXPECT_EQ(office.deliveryItems.LoadCapacity, 0.0F);
}

// Posting.

TEST_F(DeliveryScreen, WholeSlipIsWrittenWithTheKeyboardAlone) {
    folder.Write(counterFile, "20260014\r\n");
    Open();
    TypeFocused(u"Back door"_s);
    PressFocused(Qt::Key_Return);
    EXPECT_EQ(Focused(), u"txtDeliveryNo"_s);
    PressFocused(Qt::Key_Return);
    EXPECT_EQ(Focused(), u"txtReference"_s);
    TypeFocused(u"PO 7"_s);
    PressFocused(Qt::Key_Return);
    EXPECT_EQ(Focused(), u"optRecurring(0)"_s);
    PressFocused(Qt::Key_Space);
    PressFocused(Qt::Key_Return);
    EXPECT_EQ(Focused(), u"lstFrequency"_s);
    TypeFocused(u"Mult"_s);
    PressFocused(Qt::Key_Return);
    EXPECT_EQ(Focused(), u"ckMulti(2)"_s);
    PressFocused(Qt::Key_Space);
    for (int day = 3; day <= 6; ++day) {
        PressFocused(Qt::Key_Return);
        EXPECT_EQ(Focused(), u"ckMulti(%1)"_s.arg(day));
    }
    PressFocused(Qt::Key_Return);
    EXPECT_EQ(Focused(), u"cmdInvoice(3)"_s);
    PressFocused(Qt::Key_Return);
    EXPECT_EQ(Focused(), u"DTShip"_s);
    TypeFocused(u"3/16/2026"_s);
    PressFocused(Qt::Key_Return);
    EXPECT_EQ(Focused(), u"lstTime"_s);
    TypeFocused(u"08:30"_s);
    PressFocused(Qt::Key_Return);
    EXPECT_EQ(Focused(), u"lstVehicles"_s);
    PressFocused(Qt::Key_Return);
    EXPECT_EQ(Focused(), u"cmdInvoice(0)"_s);
    user.ExpectMessage(
        u" The 1st Delivery will be made on 3/16/2026\nand will re-occurr Multiple Week Days"_s);
    PressFocused(Qt::Key_Return);
    EXPECT_EQ(Focused(), u"lstItems"_s);
    TypeFocused(u"Sa"_s);
    PressFocused(Qt::Key_Return);
    EXPECT_EQ(Focused(), u"txtUnits"_s);
    TypeFocused(u"2"_s);
    PressFocused(Qt::Key_Return);
    EXPECT_EQ(Focused(), u"lstItems"_s);
    PressFocused(Qt::Key_Return);
    PressFocused(Qt::Key_Return);
    EXPECT_EQ(Focused(), u"cmdStore"_s);
    PressFocused(Qt::Key_Return);
    EXPECT_TRUE(IsShown(ScreenName::frmStartup));
    EXPECT_EQ(folder.Read(headers + u"20260014.txt"_s),
              "20260014\r\n3/16/2026\r\n08:30am\r\nTrue\r\n0100000\r\nFlatbed Truck\r\n4471\r\n"
              "Corner Grocery\r\nPO 7\r\nBack door\r\n"
              "\"Corner Grocery\"\r\n\"12 Mill Road\"\r\n\"\"\r\n\"Springfield\"\r\n\"IL\"\r\n"
              "\"62704\"\r\n\"Corner Grocery\"\r\n\"12 Mill Road\"\r\n\"\"\r\n\"Springfield\"\r\n"
              "\"IL\"\r\n\"62704\"\r\n");
    EXPECT_EQ(folder.Read(itemFiles + u"20260014.txt"_s),
              "20260014\r\n1\r\n2\r\nSand\r\n$2.35\r\n$4.70\r\n\"$4.70\"\r\n");
    EXPECT_EQ(folder.Read(counterFile), "20260015\r\n");
}

TEST_F(DeliveryScreen, ClickOnAnItemGoesOnToTheUnitsAndArrowKeysDoNot) {
    OpenItems();
    EXPECT_EQ(Panels(), QStringList{u"fraItems"_s});
    EXPECT_EQ(Focused(), u"lstItems"_s);
    PressFocused(Qt::Key_Down);
    PressFocused(Qt::Key_Down);
    EXPECT_EQ(Focused(), u"lstItems"_s);
    ClickEntry(u"lstItems"_s, 1);
    EXPECT_EQ(Focused(), u"txtUnits"_s);
    TypeFocused(u"3"_s);
    ClickOn(u"cmdPost(1)"_s);
    EXPECT_EQ(Row(1), (QStringList{u"3"_s, u"Heating Oil"_s, u"$12.50"_s, u"$37.50"_s}));
    EXPECT_EQ(Caption(u"txtTotal"_s), u"$37.50"_s);
    EXPECT_EQ(Shown(u"txtUnits"_s), QString());
    EXPECT_EQ(Selected(u"lstItems"_s), u"Gravel, fine"_s);
}

TEST_F(DeliveryScreen, PostWithoutASelectedItemBeepsAndComesBackToTheList) {
    OpenItems();
    PressFocused(Qt::Key_Tab);
    TypeFocused(u"2"_s);
    PressFocused(Qt::Key_Return);
    EXPECT_EQ(user.Beeps, 1);
    EXPECT_EQ(Focused(), u"lstItems"_s);
    EXPECT_EQ(Shown(u"txtUnits"_s), u"2"_s);
    EXPECT_EQ(office.deliveryItems.SlipItemCount, 0);
}

TEST_F(DeliveryScreen, OneItemAloneIsSelectedAndTheUnitsComeNext) {
    folder.Write(u"NXInventoriedItems.txt"_s, ItemBytes{.description = "Sand"}.Record());
    OpenItems();
    EXPECT_EQ(Selected(u"lstItems"_s), u"Sand"_s);
    EXPECT_EQ(Focused(), u"txtUnits"_s);
}

TEST_F(DeliveryScreen, UnitsTakeDigitsAndOnePointAndTypingReplacesAZero) {
    OpenItems();
    Enter(u"txtUnits"_s, u"0x2.5.1"_s);
    EXPECT_EQ(Shown(u"txtUnits"_s), u"2.51"_s);
    EXPECT_EQ(user.Beeps, 2);
    Text(u"txtUnits"_s)->setText(u"0"_s);
    TypeFocused(u"7"_s);
    EXPECT_EQ(Shown(u"txtUnits"_s), u"7"_s);
    Menu(u"mnuNonInvoiced"_s)->trigger();
    EXPECT_EQ(Shown(u"txtNonPriced"_s), u"0"_s);
    Text(u"txtNonPriced"_s)->setFocus();
    TypeFocused(u"4"_s);
    EXPECT_EQ(Shown(u"txtNonPriced"_s), u"4"_s);
}

TEST_F(DeliveryScreen, PastedLettersStayOutOfTheUnits) {
    OpenItems();
    for (const QString& field : {u"txtUnits"_s, u"txtNonPriced"_s}) {
        Text(field)->clear();
        Paste(field, u"12kg"_s);
        EXPECT_EQ(Shown(field), u"12"_s);
        Text(field)->clear();
        Paste(field, u"abc"_s);
        EXPECT_EQ(Shown(field), QString());
    }
}

TEST_F(DeliveryScreen, UnitsThatAreNoNumberKeepTheFocusAndNothingIsPosted) {
    OpenItems();
    ClickEntry(u"lstItems"_s, 1);
    TypeFocused(u"."_s);
    ClickOn(u"cmdPost(1)"_s);
    EXPECT_EQ(Shown(u"txtUnits"_s), u"0"_s);
    EXPECT_EQ(Focused(), u"txtUnits"_s);
    EXPECT_EQ(user.Beeps, 1);
    EXPECT_EQ(office.deliveryItems.SlipItemCount, 0);
    EXPECT_TRUE(Failures().empty());
}

TEST_F(DeliveryScreen, UnitsBeyondSixteenBitsOrMissingStopTheProgram) {
    OpenItems();
    ClickEntry(u"lstItems"_s, 1);
    TypeFocused(u"32768"_s);
    ClickOn(u"cmdPost(1)"_s);
    ASSERT_EQ(Failures().size(), 1U);
    EXPECT_EQ(Failures().back().Kind(), FailureKind::Overflow);
    Text(u"txtUnits"_s)->clear();
    ClickOn(u"cmdPost(1)"_s);
    ASSERT_EQ(Failures().size(), 2U);
    EXPECT_EQ(Failures().back().Kind(), FailureKind::TypeMismatch);
    EXPECT_EQ(office.deliveryItems.SlipItemCount, 0);
}

TEST_F(DeliveryScreen, CapacityMessageComesBackToTheUnits) {
    OpenItems();
    ClickEntry(u"lstItems"_s, 2);
    TypeFocused(u"201"_s);
    user.ExpectMessage(
        u"201 exceeds the load capacity\nof Flatbed Truck\nEnter a lower delivery amount"_s);
    PressFocused(Qt::Key_Return);
    EXPECT_EQ(Shown(u"txtUnits"_s), u"0"_s);
    EXPECT_EQ(Focused(), u"txtUnits"_s);
    TypeFocused(u"200"_s);
    PressFocused(Qt::Key_Return);
    EXPECT_EQ(Row(1).front(), u"200"_s);
}

TEST_F(DeliveryScreen, VehicleOfOneProductAsksForUnitsWithoutAName) {
    Open();
    ClickEntry(u"lstVehicles"_s, 1);
    ClickOn(u"cmdInvoice(0)"_s);
    EXPECT_EQ(Caption(u"Label4(2)"_s), u"Enter "_s);
}

TEST_F(DeliveryScreen, NonPricedLineIsTypedAndPosted) {
    OpenItems();
    Menu(u"mnuNonInvoiced"_s)->trigger();
    EXPECT_EQ(Panels(), QStringList{u"fraNonPriced"_s});
    EXPECT_EQ(Focused(), u"cboNonPricedDescription"_s);
    TypeFocused(u"Crates, \"blue\""_s);
    PressFocused(Qt::Key_Return);
    EXPECT_EQ(Focused(), u"txtNonPriced"_s);
    TypeFocused(u"7"_s);
    PressFocused(Qt::Key_Return);
    EXPECT_EQ(Row(1), (QStringList{u"7"_s, u"Crates, \"blue\""_s, u"$0.00"_s, u"$0.00"_s}));
    EXPECT_EQ(Focused(), u"cboNonPricedDescription"_s);
    TypeFocused(u"Pallets"_s);
    EXPECT_EQ(Descriptions()->currentText(), u"Pallets"_s);
    ClickOn(u"cmdPost(2)"_s);
    EXPECT_EQ(Panels(), QStringList{u"fraItems"_s});
    EXPECT_EQ(office.deliveryItems.SlipItemCount, 1);
}

TEST_F(DeliveryScreen, ListedDescriptionIsPickedByKeyAndTheUnitsComeNext) {
    OpenItems();
    Menu(u"mnuNonInvoiced"_s)->trigger();
    PressFocused(Qt::Key_Down);
    ASSERT_TRUE(Descriptions()->view()->isVisible());
    EXPECT_EQ(Shown(u"txtNonPriced"_s), u"0"_s);
    QTest::keyClick(Descriptions()->view(), Qt::Key_Down);
    QTest::keyClick(Descriptions()->view(), Qt::Key_Return);
    EXPECT_EQ(Descriptions()->currentText(), u"Empty crates"_s);
    EXPECT_EQ(Shown(u"txtNonPriced"_s), QString());
    EXPECT_EQ(Focused(), u"txtNonPriced"_s);
}

TEST_F(DeliveryScreen, TypedNameOfAListedDescriptionDoesNotThrowTheFocusAbout) {
    OpenItems();
    Menu(u"mnuNonInvoiced"_s)->trigger();
    TypeFocused(u"Empty crates"_s);
    QTest::keyClick(screens.Find(delivery)->focusWidget(), Qt::Key_Escape);
    ClickOn(u"cmdPost(2)"_s);
    EXPECT_EQ(Panels(), QStringList{u"fraItems"_s});
    EXPECT_EQ(Focused(), u"lstItems"_s);
}

TEST_F(DeliveryScreen, FullSlipClosesTheButtonThatFilledIt) {
    OpenItems();
    for (int i = 0; i < 99; ++i) {
        office.deliveryForm.lstItems = 0;
        office.deliveryForm.txtUnits = u"1"_s;
        office.deliveryItems.PostItem();
    }
    user.ExpectMessage(u"The Slip is full"_s);
    Post(0, u"1"_s);
    EXPECT_FALSE(Button(u"cmdPost(1)"_s)->isEnabled());
    EXPECT_TRUE(Button(u"cmdPost(0)"_s)->isEnabled());
    ClickOn(u"cmdRedo"_s);
    EXPECT_FALSE(Button(u"cmdPost(1)"_s)->isEnabled());
    screens.Show(delivery);
    EXPECT_TRUE(Button(u"cmdPost(1)"_s)->isEnabled());
}

// The grid.

TEST_F(DeliveryScreen, UnitsAreEditedInTheGridByKeys) {
    OpenItems();
    Post(0, u"2"_s);
    ClickCell(grid, 1, 0);
    grid->setFocus();
    PressFocused(Qt::Key_5);
    EXPECT_EQ(Row(1), (QStringList{u"25"_s, u"Gravel, fine"_s, u"$5.00"_s, u"$250.00"_s}));
    EXPECT_EQ(Caption(u"txtTotal"_s), u"$10.00"_s);
    EXPECT_EQ(Focused(), u"fgDelivery"_s);
    PressFocused(Qt::Key_Backspace);
    EXPECT_EQ(Row(1), (QStringList{QString(), u"Gravel, fine"_s, u"$5.00"_s, u"$0.00"_s}));
    ClickCell(grid, 1, 1);
    PressFocused(Qt::Key_5);
    EXPECT_EQ(Row(1).front(), QString());
}

TEST_F(DeliveryScreen, RightButtonOpensTheDeletionOnALineAlone) {
    OpenItems();
    Post(0, u"2"_s);
    Post(2, u"1"_s);
    RightClick(3, 1);
    EXPECT_EQ(Popup(), nullptr);
    RightClick(1, 1);
    ASSERT_NE(Popup(), nullptr);
    EXPECT_EQ(Popup()->objectName(), u"mnuDeleteItem"_s);
    ExpectDeletion(u"Gravel, fine"_s);
    Popup()->trigger();
    ClosePopup();
    EXPECT_EQ(Row(1), (QStringList{u"1"_s, u"Sand"_s, u"$2.35"_s, u"$2.35"_s}));
    EXPECT_EQ(office.deliveryItems.fgDelivery.Rows(), 101);
    EXPECT_EQ(Caption(u"txtTotal"_s), u"$12.35"_s);
}

TEST_F(DeliveryScreen, MenuKeysOpenTheDeletionOfTheCurrentLine) {
    OpenItems();
    Post(0, u"2"_s);
    office.deliveryItems.fgDelivery.SetCurrent(1, 0);
    grid->setFocus();
    QTest::keyClick(grid, Qt::Key_F10, Qt::ShiftModifier);
    EXPECT_NE(Popup(), nullptr);
    ClosePopup();
    QContextMenuEvent menu(QContextMenuEvent::Keyboard, QPoint(5, 5), grid->mapToGlobal(QPoint()));
    QApplication::sendEvent(grid, &menu);
    EXPECT_NE(Popup(), nullptr);
    ClosePopup();
    office.deliveryItems.fgDelivery.SetCurrent(2, 0);
    QTest::keyClick(grid, Qt::Key_F10, Qt::ShiftModifier);
    EXPECT_EQ(Popup(), nullptr);
}

TEST_F(DeliveryScreen, DeleteKeyAsksForTheCurrentLine) {
    OpenItems();
    Post(0, u"2"_s);
    office.deliveryItems.fgDelivery.SetCurrent(1, 0);
    grid->setFocus();
    ExpectDeletion(u"Gravel, fine"_s, Answer::No);
    PressFocused(Qt::Key_Delete);
    EXPECT_EQ(office.deliveryItems.SlipItemCount, 1);
    ExpectDeletion(u"Gravel, fine"_s);
    PressFocused(Qt::Key_Delete);
    EXPECT_EQ(office.deliveryItems.SlipItemCount, 0);
    EXPECT_EQ(Focused(), u"fgDelivery"_s);
}

// Panels.

TEST_F(DeliveryScreen, MenusShowTheirPanels) {
    OpenItems();
    Menu(u"mnuAccount"_s)->trigger();
    EXPECT_EQ(Panels(), QStringList{u"fraCustomer"_s});
    EXPECT_EQ(Caption(u"lblAcct"_s), u"4471"_s);
    Menu(u"mnuAccount"_s)->trigger();
    EXPECT_EQ(Panels(), QStringList());
    Menu(u"mnuItems"_s)->trigger();
    EXPECT_EQ(Panels(), QStringList{u"fraItems"_s});
    Menu(u"mnuSetup"_s)->trigger();
    EXPECT_EQ(Panels(), QStringList{u"fraSetup"_s});
    EXPECT_TRUE(IsVisible(u"cmdInvoice(1)"_s));
    EXPECT_FALSE(IsVisible(u"cmdStore"_s) || IsVisible(u"cmdExit"_s));
    Menu(u"mnuNonInvoiced"_s)->trigger();
    EXPECT_EQ(Panels(), QStringList{u"fraNonPriced"_s});
    EXPECT_TRUE(IsVisible(u"cmdStore"_s) && IsVisible(u"cmdExit"_s));
}

TEST_F(DeliveryScreen, MenuLeavesAnEmptyNumberAsAButtonDoes) {
    OpenItems();
    Post(2, u"2"_s);
    PressMenu(Qt::Key_D);
    ClickOn(u"cmdInvoice(4)"_s);
    ExpectReloaded();
    PressMenu(Qt::Key_I);
    EXPECT_EQ(Panels(), QStringList{u"fraItems"_s});
    ClickOn(u"cmdStore"_s);
    EXPECT_TRUE(folder.Has(headers + u"20260001.txt"_s));
    EXPECT_FALSE(folder.Has(headers + u".txt"_s));
}

TEST_F(DeliveryScreen, MenuDoesNotActWhenTheUnitsAreNoNumber) {
    OpenItems();
    for (const Qt::Key letter : {Qt::Key_D, Qt::Key_A, Qt::Key_N}) {
        Enter(u"txtUnits"_s, u"."_s);
        PressMenu(letter);
        EXPECT_EQ(Panels(), QStringList{u"fraItems"_s});
        EXPECT_EQ(Shown(u"txtUnits"_s), u"0"_s);
        EXPECT_EQ(Focused(), u"txtUnits"_s);
    }
    EXPECT_EQ(user.Beeps, 3);
}

TEST_F(DeliveryScreen, MenuPreparesAReferenceThatIsLeftEmpty) {
    Open();
    Enter(u"txtReference"_s, u"PO"_s);
    Text(u"txtReference"_s)->clear();
    PressMenu(Qt::Key_I);
    PressMenu(Qt::Key_D);
    EXPECT_EQ(Shown(u"txtReference"_s), u"Prepared 3/9/2026"_s);
}

TEST_F(DeliveryScreen, MenuTakesADateThatIsTyped) {
    Open();
    for (const auto& [typed, date] :
         {std::pair(u"3/12/2026"_s, QDate(2026, 3, 12)), {u"3/14/2026"_s, QDate(2026, 3, 16)}}) {
        Date()->setFocus();
        Date()->selectAll();
        TypeFocused(typed);
        PressMenu(Qt::Key_I);
        EXPECT_EQ(office.deliveryForm.DTShip, date);
        PressMenu(Qt::Key_D);
        EXPECT_EQ(Date()->Date(), date);
    }
}

TEST_F(DeliveryScreen, MenuBarWalkedByKeysLeavesTheFieldAsItsLettersDo) {
    OpenItems();
    Enter(u"txtUnits"_s, u"."_s);
    WalkMenuBarTo(2);
    EXPECT_EQ(Panels(), QStringList{u"fraItems"_s});
    EXPECT_EQ(Shown(u"txtUnits"_s), u"0"_s);
    EXPECT_EQ(Focused(), u"txtUnits"_s);
    EXPECT_EQ(user.Beeps, 1);
    WalkMenuBarTo(1);
    EXPECT_EQ(Panels(), QStringList{u"fraSetup"_s});
    EXPECT_EQ(Focused(), u"txtShipto(6)"_s);
}

TEST_F(DeliveryScreen, ClickOnTheMenuBarLeavesTheField) {
    Open();
    ClickOn(u"cmdInvoice(4)"_s);
    ExpectReloaded();
    QMenuBar* bar = screens.Find(delivery)->menuBar();
    QTest::mouseClick(bar, Qt::LeftButton, Qt::NoModifier,
                      bar->actionGeometry(Menu(u"mnuItems"_s)).center());
    EXPECT_EQ(Panels(), QStringList{u"fraItems"_s});
    EXPECT_EQ(office.deliveryForm.txtDeliveryNo, u"20260001"_s);
}

TEST_F(DeliveryScreen, MenuThatMovesNoFocusGivesItBackOrOn) {
    OpenItems();
    grid->setFocus();
    PressMenu(Qt::Key_A);
    EXPECT_EQ(Panels(), QStringList{u"fraCustomer"_s});
    EXPECT_EQ(Focused(), u"fgDelivery"_s);
    PressMenu(Qt::Key_D);
    EXPECT_EQ(Focused(), u"txtShipto(6)"_s);
    PressMenu(Qt::Key_A);
    const QWidget* focus = screens.Find(delivery)->focusWidget();
    EXPECT_TRUE(focus->isVisible() && (focus->focusPolicy() & Qt::TabFocus))
        << focus->objectName().toStdString();
}

TEST_F(DeliveryScreen, PopupOffersThePanelsAsWell) {
    OpenItems();
    QStringList names;
    for (const QAction* item : Find<QMenu>(delivery, u"mnupopup"_s)->actions()) {
        if (!item->isSeparator())
            names += item->objectName();
    }
    EXPECT_EQ(names, (QStringList{u"mnuDeleteItem"_s, u"mnuAccount"_s, u"mnuSetup"_s, u"mnuItems"_s,
                                  u"mnuNonInvoiced"_s}));
}

TEST_F(DeliveryScreen, SetupAndBackKeepsTheLinesAndTheFields) {
    OpenItems();
    Post(0, u"2"_s);
    Menu(u"mnuSetup"_s)->trigger();
    Enter(u"txtDeliveryNo"_s, u"500"_s);
    ClickOn(u"cmdInvoice(0)"_s);
    EXPECT_EQ(office.deliveryItems.SlipItemCount, 1);
    EXPECT_EQ(Shown(u"txtReference"_s), u"Prepared 3/9/2026"_s);
    EXPECT_EQ(Caption(u"where"_s), u"Corner Grocery  \u00b7  Slip 500"_s);
}

TEST_F(DeliveryScreen, ReDoGoesBackToTheSetupWithoutLines) {
    OpenItems();
    Post(0, u"2"_s);
    ClickOn(u"cmdRedo"_s);
    EXPECT_EQ(Panels(), QStringList{u"fraSetup"_s});
    EXPECT_EQ(office.deliveryItems.SlipItemCount, 0);
    EXPECT_EQ(Caption(u"txtTotal"_s), u"$0.00"_s);
    EXPECT_EQ(Shown(u"txtDeliveryNo"_s), u"20260001"_s);
    EXPECT_EQ(Shown(u"txtReference"_s), QString());
}

// Storing and leaving.

TEST_F(DeliveryScreen, StoreWithoutItemsStays) {
    OpenItems();
    user.ExpectMessage(u"The Delivery contains no Items"_s, u"No Items Entered"_s);
    ClickOn(u"cmdStore"_s);
    EXPECT_TRUE(IsShown(delivery));
    EXPECT_EQ(folder.Read(counterFile), "20260001\r\n");
}

TEST_F(DeliveryScreen, StoredSlipLeavesForTheMenuAndTheNextOneIsEmpty) {
    OpenItems();
    Post(2, u"2"_s);
    ClickOn(u"cmdStore"_s);
    EXPECT_TRUE(IsShown(ScreenName::frmStartup));
    EXPECT_FALSE(IsShown(delivery));
    EXPECT_TRUE(folder.Has(headers + u"20260001.txt"_s));
    Open();
    EXPECT_EQ(Shown(u"txtDeliveryNo"_s), u"20260002"_s);
    EXPECT_EQ(office.deliveryItems.SlipItemCount, 0);
    EXPECT_EQ(Panels(), QStringList{u"fraSetup"_s});
}

TEST_F(DeliveryScreen, ExitLeavesWithoutASlip) {
    OpenItems();
    Post(2, u"2"_s);
    ClickOn(u"cmdExit"_s);
    EXPECT_TRUE(IsShown(ScreenName::frmStartup));
    EXPECT_FALSE(folder.Has(headers + u"20260001.txt"_s));
    EXPECT_TRUE(folder.Has(u"DeliverySettings.txt"_s));
    EXPECT_EQ(folder.Read(counterFile), "20260001\r\n");
}

TEST_F(DeliveryScreen, FullDiskStopsTheProgramAndLeavesNoSlip) {
    OpenItems();
    Post(2, u"2"_s);
    const auto before = folder.Contents();
    {
        const FullDisk disk(60);
        ClickOn(u"cmdStore"_s);
    }
    ASSERT_EQ(Failures().size(), 1U);
    EXPECT_EQ(Failures().front().Kind(), FailureKind::DiskFull);
    EXPECT_EQ(folder.Contents(), before);
}

TEST_F(DeliveryScreen, CounterThatCantBeSavedStopsTheProgramBehindTheWholeSlip) {
    OpenItems();
    Post(2, u"2"_s);
    // A folder in the way of the counter's old copy.
    folder.MakeFolder(u"Backup/NQDeliveryNo.txt"_s);
    ClickOn(u"cmdStore"_s);
    ASSERT_EQ(Failures().size(), 1U);
    EXPECT_EQ(Failures().front().Sentence(),
              u"Deleting Backup/NQDeliveryNo.txt failed: Is a directory."_s);
    EXPECT_EQ(folder.Read(headers + u"20260001.txt"_s).count("\r\n"), 22);
    EXPECT_EQ(folder.Read(itemFiles + u"20260001.txt"_s),
              "20260001\r\n1\r\n2\r\nSand\r\n$2.35\r\n$4.70\r\n\"$4.70\"\r\n");
    EXPECT_EQ(folder.Read(counterFile), "20260001\r\n");
}

TEST_F(DeliveryScreen, CloseBoxEndsTheProgram) {
    Open();
    CloseByUser(delivery);
    EXPECT_EQ(exitRequests, 1);
}

// Templates.

TEST_F(DeliveryScreen, FirstTemplateIsSavedFromTheItemsAndThenThePanelShows) {
    OpenItems();
    EXPECT_FALSE(IsVisible(u"fraTemplates"_s));
    EXPECT_TRUE(Button(u"cmdTemplate(2)"_s)->isEnabled());
    Post(2, u"2"_s);
    user.ExpectInputBox(u"Enter a Name for this Template\nDo not enter /\\,.-:; Characters\n"
                        u"Do not enter .txt (this is done automatically"_s,
                        u"Save Invoice Template"_s, u"Week"_s);
    ClickOn(u"cmdTemplate(2)"_s);
    EXPECT_EQ(folder.Read(templateFiles + u"Week.txt"_s), TemplateLine("2", "Sand", "2.35"));
    EXPECT_TRUE(IsVisible(u"fraTemplates"_s));
    EXPECT_EQ(Selected(u"flstDeliveryTemplates"_s), u"Week.txt"_s);
    EXPECT_TRUE(Button(u"cmdTemplate(0)"_s)->isEnabled());
    EXPECT_TRUE(Button(u"cmdTemplate(1)"_s)->isEnabled());
    EXPECT_FALSE(Button(u"cmdTemplate(2)"_s)->isEnabled());
}

TEST_F(DeliveryScreen, TemplateIsLoadedFromTheSetup) {
    folder.Write(templateFiles + u"Farm.txt"_s, TemplateLine("1", "Gravel", "5.00"));
    folder.Write(templateFiles + u"Week.txt"_s,
                 TemplateLine("2", "Sand", "9.00") + TemplateLine("3", "Heating Oil", "1.00"));
    Open();
    EXPECT_EQ(Panels(), (QStringList{u"fraSetup"_s, u"fraTemplates"_s}));
    EXPECT_EQ(Selected(u"flstDeliveryTemplates"_s), u"Farm.txt"_s);
    ClickEntry(u"flstDeliveryTemplates"_s, 1);
    ClickOn(u"cmdTemplate(0)"_s);
    EXPECT_EQ(Panels(), (QStringList{u"fraItems"_s, u"fraTemplates"_s}));
    EXPECT_EQ(Row(1), (QStringList{u"2"_s, u"Sand"_s, u"9.00"_s, u"$18.00"_s}));
    EXPECT_EQ(Row(2), (QStringList{u"3"_s, u"Heating Oil"_s, u"1.00"_s, u"$3.00"_s}));
    EXPECT_EQ(Caption(u"txtTotal"_s), u"$21.00"_s);
    EXPECT_EQ(Selected(u"flstDeliveryTemplates"_s), u"Week.txt"_s);
}

TEST_F(DeliveryScreen, EnterOnATemplateLoadsIt) {
    folder.Write(templateFiles + u"Week.txt"_s, TemplateLine("2", "Sand", "9.00"));
    Open();
    List(u"flstDeliveryTemplates"_s)->setFocus();
    PressFocused(Qt::Key_Return);
    EXPECT_EQ(office.deliveryItems.SlipItemCount, 1);
    EXPECT_EQ(Panels(), (QStringList{u"fraItems"_s, u"fraTemplates"_s}));
}

TEST_F(DeliveryScreen, LastTemplateDeletedClosesItsButtons) {
    folder.Write(templateFiles + u"Week.txt"_s, TemplateLine("2", "Sand", "9.00"));
    Open();
    user.ExpectWarning(u"This will Delete Template\nWeek.txt"_s, u"Template Deletion"_s,
                       Answer::Ok);
    ClickOn(u"cmdTemplate(1)"_s);
    EXPECT_FALSE(folder.Has(templateFiles + u"Week.txt"_s));
    EXPECT_FALSE(Button(u"cmdTemplate(0)"_s)->isEnabled());
    EXPECT_FALSE(Button(u"cmdTemplate(1)"_s)->isEnabled());
}
