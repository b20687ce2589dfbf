#include "support/ScreenTest.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QTabBar>
#include <QTabWidget>

using namespace Qt::StringLiterals;

namespace {

constexpr ScreenName setup = ScreenName::frmSetup;

const QString changeBorders = u"cmdChange(0)"_s;
const QString changeText = u"cmdChange(1)"_s;
const QString changeFont = u"cmdChange(2)"_s;

const QString filter =
    u"Pictures |(*.bmp;*.BMP;*.ico;*.ICO; *.cur; *.CUR;*jpg;*JPG; *.EMF)|All|*.*"_s;

// Colours as the settings hold them, and as they show.
constexpr quint32 orange = 0x0080ff;
constexpr quint32 sky = 0xff8000;
const QString orangeName = u"#ff8000"_s;
const QString skyName = u"#0080ff"_s;
const QString blackName = u"#000000"_s;

} // namespace

class SetupPrintingScreen : public ScreenTest {
protected:
    /// A new start on the files that are there, and the way to the tab.
    void ShowTab() {
        office.setup.LoadAll();
        screens.Show(setup);
        const auto* tabs = Find<QTabWidget>(setup, u"tabInfo"_s);
        constexpr int options = 2;
        EXPECT_EQ(tabs->tabText(options), u"Options"_s);
        QTest::mouseClick(tabs->tabBar(), Qt::LeftButton, Qt::NoModifier,
                          tabs->tabBar()->tabRect(options).center());
        const auto* subTabs = Find<QTabWidget>(setup, u"SSTab2"_s);
        EXPECT_EQ(subTabs->tabText(subTabs->currentIndex()), u"Printing"_s);
        plainWord = WordColor(1);
        EXPECT_NE(plainWord, skyName);
        EXPECT_NE(plainWord, orangeName);
    }

    /// On its mark; the middle of a wide control may be beside its caption.
    void Tick(const QString& name) {
        auto* box = Find<QAbstractButton>(setup, name);
        constexpr int mark = 8;
        QTest::mouseClick(box, Qt::LeftButton, Qt::NoModifier, QPoint(mark, box->height() / 2));
    }
    void ChangeTextTo(quint32 held, quint32 color) {
        user.ExpectColorDialog(held, color);
        Click(setup, changeText);
    }
    void CancelFind() {
        user.ExpectFileDialog(filter, std::nullopt);
        office.logo.Find();
    }

    QString BoxColor(const QString& name) {
        auto* box = Find<QLineEdit>(setup, name);
        return box->grab().toImage().pixelColor(box->rect().center()).name();
    }
    QString WordColor(int index) {
        const auto* word = Find<QLabel>(setup, Indexed(u"Label2"_s, index));
        return word->palette().color(QPalette::Active, word->foregroundRole()).name();
    }
    void ExpectWords(const QString& color) {
        EXPECT_EQ(WordColor(1), color);
        EXPECT_EQ(WordColor(3), color);
    }
    bool IsChosen(const QString& name) { return Find<QRadioButton>(setup, name)->isChecked(); }

    QString plainWord;
};

TEST_F(SetupPrintingScreen, CaptionsAndToolTips) {
    ShowTab();
    EXPECT_EQ(Find<QLabel>(setup, u"lblFont"_s)->toolTip(), u"Select a print FONT, not size"_s);
    const auto* ckColor = Find<QCheckBox>(setup, u"ckColor"_s);
    EXPECT_EQ(ckColor->text(), u"Print"_s);
    EXPECT_EQ(ckColor->toolTip(), u"Headings, totals etc are printed in highlighting colors"_s);
    EXPECT_EQ(Find<QLabel>(setup, u"Label2(1)"_s)->text(), u"in"_s);
    EXPECT_EQ(Find<QLabel>(setup, u"Label2(3)"_s)->text(), u"Color"_s);
    const auto* optPlain = Find<QRadioButton>(setup, u"optPlain"_s);
    EXPECT_EQ(optPlain->text(), u"No Remittance Slip"_s);
    EXPECT_EQ(optPlain->toolTip(), u"Use plain paper"_s);
    const auto* optReturn = Find<QRadioButton>(setup, u"optReturn"_s);
    EXPECT_EQ(optReturn->text(), u"Print Remittance Slip "_s);
    EXPECT_EQ(optReturn->toolTip(), u"Invoices are printed using  perforated Response Paper to "
                                    u"create a remittance slip"_s);
    EXPECT_EQ(Find<QComboBox>(setup, u"cboCopies"_s)->toolTip(), u"How many copies to print"_s);
}

TEST_F(SetupPrintingScreen, TextsOfTheTab) {
    ShowTab();
    const QStringList texts = TextsIn(screens.Find(setup));
    for (const QString& text :
         {u"Border / Frame Color"_s, u"Text Color"_s, u"Document Font"_s, u"Print Copies"_s,
          u"Print settings apply to all types of documents"_s,
          u"Print Settings are also used for Reports"_s, u"Invoice Document Form"_s,
          u"Mailing Envelope"_s, u"Deluxe Form # 91551"_s, u"(use plain paper)"_s,
          u"(use perfed paper)"_s, u"(Order Forms on Main Menu Screen)"_s})
        EXPECT_TRUE(texts.contains(text)) << text.toStdString();
}

TEST_F(SetupPrintingScreen, WithoutFilesBlackArialThreeCopiesPlainPaperAndNoColor) {
    ShowTab();
    EXPECT_EQ(BoxColor(u"txtBorders"_s), blackName);
    EXPECT_EQ(BoxColor(u"txtData"_s), blackName);
    EXPECT_EQ(Find<QLabel>(setup, u"lblFont"_s)->text(), u"Arial"_s);
    EXPECT_EQ(Find<QComboBox>(setup, u"cboCopies"_s)->currentText(), u"3"_s);
    EXPECT_FALSE(Find<QCheckBox>(setup, u"ckColor"_s)->isChecked());
    EXPECT_TRUE(IsChosen(u"optPlain"_s));
    EXPECT_FALSE(IsChosen(u"optReturn"_s));
}

TEST_F(SetupPrintingScreen, StoredLookIsShownAndWordsHaveTheTextColor) {
    folder.Write(u"PrintColors.txt"_s, "33023\r\n16744448\r\n\"Courier New\"\r\n#FALSE#\r\n7\r\n");
    folder.Write(u"DeliverySettings.txt"_s,
                 "1,1,0,1,0,0,#FALSE#,#TRUE#,\"$0.00\",\"$0.00\",\"$0.00\"\r\n");
    office.setup.LoadAll();
    screens.Show(setup);
    EXPECT_EQ(Find<QLabel>(setup, u"lblFont"_s)->text(), u"Courier New"_s);
    EXPECT_EQ(Find<QComboBox>(setup, u"cboCopies"_s)->currentText(), u"7"_s);
    EXPECT_TRUE(Find<QCheckBox>(setup, u"ckColor"_s)->isChecked());
    EXPECT_TRUE(IsChosen(u"optReturn"_s));
    EXPECT_FALSE(IsChosen(u"optPlain"_s));
    EXPECT_EQ(BoxColor(u"txtBorders"_s), orangeName);
    EXPECT_EQ(BoxColor(u"txtData"_s), skyName);
    ExpectWords(skyName);
}

TEST_F(SetupPrintingScreen, ChosenColorsShowInTheirBoxes) {
    ShowTab();
    user.ExpectColorDialog(0, orange);
    Click(setup, changeBorders);
    EXPECT_EQ(BoxColor(u"txtBorders"_s), orangeName);
    EXPECT_EQ(BoxColor(u"txtData"_s), blackName);
    ChangeTextTo(orange, sky);
    EXPECT_EQ(BoxColor(u"txtBorders"_s), orangeName);
    EXPECT_EQ(BoxColor(u"txtData"_s), skyName);
    EXPECT_EQ(office.settings.BorderColor, qint32(orange));
    EXPECT_EQ(office.settings.TextColor, qint32(sky));
    ExpectWords(plainWord);
}

TEST_F(SetupPrintingScreen, ColorBoxTakesNoKeys) {
    ShowTab();
    auto* box = Find<QLineEdit>(setup, u"txtData"_s);
    Type(box, u"red"_s);
    EXPECT_EQ(box->text(), QString());
    EXPECT_EQ(BoxColor(u"txtData"_s), blackName);
}

TEST_F(SetupPrintingScreen, ChosenFontIsTheCaption) {
    ShowTab();
    user.ExpectFontDialog(u"Arial"_s, u"DejaVu Serif"_s);
    Click(setup, changeFont);
    EXPECT_EQ(Find<QLabel>(setup, u"lblFont"_s)->text(), u"DejaVu Serif"_s);
    user.ExpectFontDialog(u"DejaVu Serif"_s, std::nullopt);
    Click(setup, changeFont);
    EXPECT_EQ(Find<QLabel>(setup, u"lblFont"_s)->text(), u"DejaVu Serif"_s);
}

TEST_F(SetupPrintingScreen, CancelBeforeAnyFindTurnsTheBoxToTheColorLastHeld) {
    folder.Write(u"PrintColors.txt"_s, "33023\r\n33023\r\n\"Arial\"\r\n#TRUE#\r\n3\r\n");
    ShowTab();
    EXPECT_EQ(BoxColor(u"txtBorders"_s), orangeName);
    user.ExpectColorDialog(0, std::nullopt);
    Click(setup, changeBorders);
    EXPECT_EQ(BoxColor(u"txtBorders"_s), blackName);
    EXPECT_EQ(BoxColor(u"txtData"_s), orangeName);
    ChangeTextTo(0, sky);
    user.ExpectColorDialog(sky, std::nullopt);
    Click(setup, changeBorders);
    EXPECT_EQ(BoxColor(u"txtBorders"_s), skyName);
}

TEST_F(SetupPrintingScreen, CancelAfterAFindChangesNothing) {
    folder.Write(u"PrintColors.txt"_s, "33023\r\n16744448\r\n\"Arial\"\r\n#TRUE#\r\n3\r\n");
    ShowTab();
    CancelFind();
    user.ExpectColorDialog(0, std::nullopt);
    Click(setup, changeBorders);
    user.ExpectColorDialog(0, std::nullopt);
    Click(setup, changeText);
    EXPECT_EQ(BoxColor(u"txtBorders"_s), orangeName);
    EXPECT_EQ(BoxColor(u"txtData"_s), skyName);
}

TEST_F(SetupPrintingScreen, AnyOfTheThreeRecolorsTheWordsWhenColorIsTicked) {
    ShowTab();
    ChangeTextTo(0, sky);
    Tick(u"ckColor"_s);
    EXPECT_EQ(office.settings.ckColor, 1);
    // The tick alone doesn't.
    ExpectWords(plainWord);
    user.ExpectColorDialog(sky, orange);
    Click(setup, changeBorders);
    ExpectWords(skyName);
    ChangeTextTo(orange, orange);
    ExpectWords(orangeName);
    office.settings.TextColor = qint32(sky);
    user.ExpectFontDialog(u"Arial"_s, u"DejaVu Serif"_s);
    Click(setup, changeFont);
    ExpectWords(skyName);
}

TEST_F(SetupPrintingScreen, WithoutTheTickTheWordsStayAsTheyAre) {
    ShowTab();
    Tick(u"ckColor"_s);
    ChangeTextTo(0, sky);
    ExpectWords(skyName);
    Tick(u"ckColor"_s);
    EXPECT_EQ(office.settings.ckColor, 0);
    ChangeTextTo(sky, orange);
    EXPECT_EQ(BoxColor(u"txtData"_s), orangeName);
    ExpectWords(skyName);
}

TEST_F(SetupPrintingScreen, CancelRecolorsTheWordsBeforeAnyFindAndNotAfterOne) {
    ShowTab();
    ChangeTextTo(0, sky);
    Tick(u"ckColor"_s);
    CancelFind();
    for (const QString& button : {changeBorders, changeText}) {
        user.ExpectColorDialog(sky, std::nullopt);
        Click(setup, button);
        ExpectWords(plainWord);
    }
    user.ExpectFontDialog(u"Arial"_s, std::nullopt);
    Click(setup, changeFont);
    ExpectWords(plainWord);
    office.commonDialog.RaisesErrorOnCancel = false;
    user.ExpectFontDialog(u"Arial"_s, std::nullopt);
    Click(setup, changeFont);
    ExpectWords(skyName);
}

TEST_F(SetupPrintingScreen, PaperIsOneOfTheTwo) {
    ShowTab();
    Tick(u"optReturn"_s);
    EXPECT_TRUE(IsChosen(u"optReturn"_s));
    EXPECT_FALSE(IsChosen(u"optPlain"_s));
    EXPECT_TRUE(office.settings.optReturn);
    EXPECT_FALSE(office.settings.optPlain);
    Tick(u"optReturn"_s);
    EXPECT_TRUE(IsChosen(u"optReturn"_s));
    Tick(u"optPlain"_s);
    EXPECT_TRUE(IsChosen(u"optPlain"_s));
    EXPECT_FALSE(IsChosen(u"optReturn"_s));
    EXPECT_TRUE(office.settings.optPlain);
    EXPECT_FALSE(office.settings.optReturn);
}

TEST_F(SetupPrintingScreen, CopiesArePickedFromOneToFiveOrTyped) {
    ShowTab();
    auto* copies = Find<QComboBox>(setup, u"cboCopies"_s);
    QStringList entries;
    for (int i = 0; i < copies->count(); ++i)
        entries += copies->itemText(i);
    EXPECT_EQ(entries, (QStringList{u"1"_s, u"2"_s, u"3"_s, u"4"_s, u"5"_s}));
    copies->lineEdit()->selectAll();
    Type(copies->lineEdit(), u"12"_s);
    EXPECT_EQ(office.settings.cboCopies, u"12"_s);
    EXPECT_EQ(office.settings.PrintCopies, 3);
}
