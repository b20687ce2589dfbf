#include "customers/CustomerScreen.h"
#include "platform/MemoBox.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

QString BoxFile(const QString& account, int box) {
    return u"AuxFiles/%1/AuxFile%2/Data.txt"_s.arg(account).arg(box);
}

} // namespace

class AuxiliaryScreen : public CustomerScreen {
protected:
    /// Three customers with the window of the first one open.
    void OpenWindow() {
        OpenThree();
        Item(u"mnuAux"_s)->trigger();
    }

    MemoBox* Aux(int box) { return Find<MemoBox>(screen, u"txtAux(%1)"_s.arg(box)); }
    MemoBox* Big() { return Find<MemoBox>(screen, u"txtBig"_s); }
    EntryField* HeadingOf(int box) {
        return Find<EntryField>(screen, u"txtHeading(%1)"_s.arg(box));
    }
    QString LabelText(const QString& name) { return Find<QLabel>(screen, name)->text(); }
    void ClickSave(int index) { Click(screen, u"cmdSaveAux(%1)"_s.arg(index)); }
    void DoubleClick(MemoBox* box) { QTest::mouseDClick(box->viewport(), Qt::LeftButton); }
    void TypeInto(MemoBox* box, const QString& text) {
        QTest::mouseClick(box->viewport(), Qt::LeftButton);
        QTest::keyClicks(box, text);
    }
};

TEST_F(AuxiliaryScreen, ControlsCarryTheirCaptionsAndToolTips) {
    OpenWindow();
    const std::tuple<int, QString, QString> buttons[] = {
        {0, u"Save &Headings"_s, u"Saves the Aux Headings"_s},
        {2, u"&Close Window"_s, u"Closes the Aux Data Screen"_s},
        {3, u"&Reload This Acct"_s, u"Reload Aux Data for this Account"_s},
        {4, u"Hi&de"_s, u"Closes the Aux Data Screen"_s},
        {5, u"Clear"_s, u"Clear Data Box"_s},
        {6, u"Oops, Reload"_s, u"Clear Data Box"_s},
        {7, u"&Show Next Account"_s, u"Save the aux data for this Account"_s},
        {8, u"Show &Previous Account"_s, u"Save the aux data for this Account"_s}};
    for (const auto& [index, caption, tip] : buttons) {
        const QAbstractButton* button = Button(u"cmdSaveAux(%1)"_s.arg(index));
        EXPECT_EQ(button->text(), caption);
        EXPECT_EQ(button->toolTip(), tip);
        EXPECT_TRUE(button->isEnabled());
    }
    EXPECT_EQ(screens.Find(screen)->findChild<QPushButton*>(u"cmdSaveAux(1)"_s), nullptr);
    EXPECT_EQ(Button(u"ckSaveAux"_s)->text(), u"RETAIN Aux Data between Accounts"_s);
    for (int box = 0; box < 6; ++box) {
        EXPECT_EQ(HeadingOf(box)->text(), u"Heading #%1"_s.arg(box + 1));
        EXPECT_EQ(HeadingOf(box)->toolTip(), u"Applies to All Accounts"_s);
        EXPECT_EQ(Aux(box)->toolTip(), u"Dbl Click to show in Big Window"_s);
        EXPECT_EQ(LabelText(u"lblClear(%1)"_s.arg(box)), u"<Clear"_s);
        EXPECT_EQ(Control(u"lblClear(%1)"_s.arg(box))->toolTip(), u"Clears the Aux Data Box"_s);
    }
    const QStringList texts = TextsIn(Control(u"fraAux"_s));
    EXPECT_TRUE(texts.contains(u"Data for Corner Grocery"_s));
    EXPECT_TRUE(
        texts.contains(u"If data in all text boxes will be the same in many accounts, click "
                       u"RETAIN to load the same data to the next account selected"_s));
    EXPECT_TRUE(texts.contains(u"place the cursor over the Heading and Dbl-click to Clear"_s));
}

TEST_F(AuxiliaryScreen, MenuTogglesTheWindowInThePlaceOfTheRecord) {
    OpenThree();
    EXPECT_FALSE(Control(u"fraAux"_s)->isVisible());
    Item(u"mnuAux"_s)->trigger();
    EXPECT_TRUE(Control(u"fraAux"_s)->isVisible());
    EXPECT_FALSE(Control(u"fraBig"_s)->isVisible());
    EXPECT_FALSE(Text(0)->isVisible());
    EXPECT_EQ(LabelText(u"lblAccount"_s), u"Corner Grocery"_s);
    EXPECT_EQ(Focused(), u"txtAux(0)"_s);
    Item(u"mnuAux"_s)->trigger();
    EXPECT_FALSE(Control(u"fraAux"_s)->isVisible());
    EXPECT_TRUE(Text(0)->isVisible());
    EXPECT_EQ(Focused(), u"txtCustomer(0)"_s);
}

TEST_F(AuxiliaryScreen, MenuIsClosedDuringAnAdd) {
    OpenThree();
    EXPECT_TRUE(Item(u"mnuAux"_s)->isEnabled());
    Click(screen, u"cmdNew"_s);
    EXPECT_FALSE(Item(u"mnuAux"_s)->isEnabled());
    Click(screen, u"cmdCustomer(13)"_s);
}

TEST_F(AuxiliaryScreen, TextsAreTypedWithLineBreaksAndSavedWhenTheWindowIsClosed) {
    OpenWindow();
    TypeInto(Aux(0), u"Key, \"under\" the mat"_s);
    QTest::keyClick(Aux(0), Qt::Key_Return);
    QTest::keyClicks(Aux(0), u"Dog"_s);
    QTest::keyClick(Aux(0), Qt::Key_Tab);
    EXPECT_EQ(Focused(), u"txtHeading(1)"_s);
    QTest::keyClick(screens.Find(screen)->focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(Focused(), u"txtAux(1)"_s);
    ClickSave(2);
    EXPECT_FALSE(Control(u"fraAux"_s)->isVisible());
    EXPECT_EQ(folder.Read(BoxFile(u"4471"_s, 0)), "Key, \"under\" the mat\r\nDog\r\n");
    EXPECT_EQ(folder.Read(BoxFile(u"4471"_s, 1)), "\r\n");
}

TEST_F(AuxiliaryScreen, EveryKindOfLineBreakIsSavedAsOne) {
    OpenWindow();
    TypeInto(Aux(0), u"one"_s);
    QTest::keyClick(Aux(0), Qt::Key_Return, Qt::ShiftModifier);
    QTest::keyClicks(Aux(0), u"two"_s);
    QApplication::clipboard()->setText(u"\u2028three\u2029four"_s);
    QTest::keyClick(Aux(0), Qt::Key_V, Qt::ControlModifier);
    DoubleClick(Aux(1));
    QTest::keyClicks(Big(), u"big"_s);
    QTest::keyClick(Big(), Qt::Key_Return, Qt::ShiftModifier);
    QTest::keyClicks(Big(), u"text"_s);
    ClickSave(4);
    ClickSave(2);
    EXPECT_EQ(folder.Read(BoxFile(u"4471"_s, 0)), "one\r\ntwo\r\nthree\r\nfour\r\n");
    EXPECT_EQ(folder.Read(BoxFile(u"4471"_s, 1)), "big\r\ntext\r\n");
}

TEST_F(AuxiliaryScreen, CharactersOfEveryKindAreSavedAsTheFileCanHoldThem) {
    OpenWindow();
    QApplication::clipboard()->setText(u"Süd 5\u00a0€\r\n倉\nend"_s);
    QTest::mouseClick(Aux(5)->viewport(), Qt::LeftButton);
    QTest::keyClick(Aux(5), Qt::Key_V, Qt::ControlModifier);
    ClickSave(2);
    EXPECT_EQ(folder.Read(BoxFile(u"4471"_s, 5)), "S\xfc"
                                                  "d 5\xa0\x80\r\n?\r\nend\r\n");
}

TEST_F(AuxiliaryScreen, NextAndPreviousAccountShowTheirTextsUnderTheirNames) {
    folder.Write(BoxFile(u"1002"_s, 3), "of Ann Lee\r\n");
    OpenWindow();
    TypeInto(Aux(3), u"of the grocery"_s);
    ClickSave(7);
    EXPECT_EQ(LabelText(u"lblAccount"_s), u"Mr/Mrs Ann Lee"_s);
    EXPECT_EQ(Aux(3)->Text(), u"of Ann Lee\n"_s);
    EXPECT_EQ(folder.Read(BoxFile(u"4471"_s, 3)), "of the grocery\r\n");
    EXPECT_TRUE(TextsIn(Control(u"fraAux"_s)).contains(u"Data for Mr/Mrs Ann Lee"_s));
    EXPECT_EQ(Shown(0), u"1002"_s);
    ClickSave(8);
    EXPECT_EQ(LabelText(u"lblAccount"_s), u"Corner Grocery"_s);
    EXPECT_EQ(Aux(3)->Text(), u"of the grocery\n"_s);
}

TEST_F(AuxiliaryScreen, RetainKeepsTheTextsForTheNextAccount) {
    OpenWindow();
    TypeInto(Aux(0), u"same"_s);
    Click(screen, u"ckSaveAux"_s);
    ClickSave(7);
    EXPECT_EQ(Aux(0)->Text(), u"same"_s);
    ClickSave(2);
    EXPECT_EQ(folder.Read(BoxFile(u"1002"_s, 0)), "same\r\n");
}

TEST_F(AuxiliaryScreen, ReloadBringsBackWhatWasSaved) {
    folder.Write(BoxFile(u"4471"_s, 0), "saved\r\n");
    OpenWindow();
    TypeInto(Aux(0), u"typed"_s);
    ClickSave(3);
    EXPECT_EQ(Aux(0)->Text(), u"saved\n"_s);
}

TEST_F(AuxiliaryScreen, DoubleClickShowsTheBoxInTheBigWindowAndHideBringsItBack) {
    OpenWindow();
    TypeInto(Aux(2), u"bites"_s);
    DoubleClick(Aux(2));
    EXPECT_TRUE(Control(u"fraBig"_s)->isVisible());
    EXPECT_FALSE(Aux(2)->isVisible());
    EXPECT_EQ(LabelText(u"lblEditing"_s),
              u"Editing Data Box # 3 - Heading #3 - for Corner Grocery"_s);
    EXPECT_EQ(Focused(), u"txtBig"_s);
    EXPECT_EQ(Big()->Text(), u"bites"_s);
    ClickSave(5);
    EXPECT_EQ(Big()->Text(), QString());
    ClickSave(6);
    EXPECT_EQ(Big()->Text(), u"bites"_s);
    Big()->selectAll();
    QTest::keyClicks(Big(), u"barks"_s);
    ClickSave(4);
    EXPECT_FALSE(Control(u"fraBig"_s)->isVisible());
    EXPECT_EQ(Aux(2)->Text(), u"barks"_s);
    EXPECT_EQ(Focused(), u"txtAux(2)"_s);
    EXPECT_FALSE(folder.Has(BoxFile(u"4471"_s, 2)));
}

TEST_F(AuxiliaryScreen, HeadingIsNamedClearedByADoubleClickAndSavedByItsButton) {
    OpenWindow();
    HeadingOf(0)->selectAll();
    Type(HeadingOf(0), u"Gate code"_s);
    QTest::mouseDClick(HeadingOf(1), Qt::LeftButton);
    EXPECT_EQ(HeadingOf(1)->text(), QString());
    EXPECT_FALSE(folder.Has(u"AuxHeadings.txt"_s));
    ClickSave(0);
    EXPECT_EQ(folder.Read(u"AuxHeadings.txt"_s),
              "Gate code\r\n\r\nHeading #3\r\nHeading #4\r\nHeading #5\r\nHeading #6\r\n");
    screens.Destroy(screen);
    Open(2);
    EXPECT_EQ(HeadingOf(0)->text(), u"Gate code"_s);
    EXPECT_EQ(HeadingOf(1)->text(), QString());
}

TEST_F(AuxiliaryScreen, HeadingStaysAtAClick) {
    OpenWindow();
    QTest::mouseClick(HeadingOf(1), Qt::LeftButton);
    EXPECT_EQ(HeadingOf(1)->text(), u"Heading #2"_s);
    EXPECT_EQ(Focused(), u"txtHeading(1)"_s);
}

TEST_F(AuxiliaryScreen, ClearWordsDoNothing) {
    OpenWindow();
    TypeInto(Aux(0), u"text"_s);
    QTest::mouseClick(Control(u"lblClear(0)"_s), Qt::LeftButton);
    EXPECT_EQ(Aux(0)->Text(), u"text"_s);
}

TEST_F(AuxiliaryScreen, SearchTakesTheWindowsPlace) {
    OpenWindow();
    Click(screen, u"Command1(0)"_s);
    EXPECT_FALSE(Control(u"fraAux"_s)->isVisible());
    EXPECT_TRUE(Control(u"fraSearch"_s)->isVisible());
    Item(u"mnuAux"_s)->trigger();
    EXPECT_TRUE(Control(u"fraAux"_s)->isVisible());
    EXPECT_FALSE(Control(u"fraSearch"_s)->isVisible());
}

TEST_F(AuxiliaryScreen, HeadingsFileWithTooFewLinesStopsTheProgram) {
    folder.Write(u"AuxHeadings.txt"_s, "1\r\n2\r\n");
    WriteCustomers({SampleCustomer{}});
    EXPECT_EQ(FailureOf([this] { screens.Show(screen); }).Kind(), FailureKind::ReadPastEnd);
}

TEST_F(AuxiliaryScreen, AccountNumberThatLeadsOutOfItsFolderStopsTheProgramAtTheSave) {
    WriteCustomers({SampleCustomer{.account = ".."}});
    Open(2);
    Item(u"mnuAux"_s)->trigger();
    TypeInto(Aux(0), u"text"_s);
    const auto before = folder.Contents();
    ClickSave(2);
    ASSERT_EQ(Failures().size(), 1U);
    EXPECT_EQ(Failures()[0].Kind(), FailureKind::BadFileName);
    Failures().clear();
    EXPECT_EQ(folder.Contents(), before);
}

TEST_F(AuxiliaryScreen, AccountNumbersOfTheFileThatLeadElsewhereStopTheProgramAtTheSave) {
    folder.Write(u"AuxFiles/x/AuxFile0/Data.txt"_s, "of another account\r\n");
    const QList<QByteArray> numbers = {".", "../x", "x/AuxFile0/..", "..\\x"};
    for (const QByteArray& number : numbers) {
        screens.Destroy(screen);
        WriteCustomers({SampleCustomer{.account = number}});
        Open(2);
        Item(u"mnuAux"_s)->trigger();
        EXPECT_EQ(Aux(0)->Text(), QString()) << number.toStdString();
        TypeInto(Aux(0), u"text"_s);
        const auto before = folder.Contents();
        ClickSave(7);
        ASSERT_EQ(Failures().size(), 1U) << number.toStdString();
        EXPECT_EQ(Failures()[0].Kind(), FailureKind::BadFileName);
        Failures().clear();
        EXPECT_EQ(folder.Contents(), before);
    }
}

TEST_F(AuxiliaryScreen, FilesWithCommasQuotesAndWithoutALineEndAreShownValueByValue) {
    folder.Write(BoxFile(u"4471"_s, 0), "Gate, code 17");
    folder.Write(BoxFile(u"4471"_s, 1), "\"Mind, the dog\",\"\"\r\n");
    folder.Write(BoxFile(u"4471"_s, 2), "\"open");
    folder.Write(BoxFile(u"4471"_s, 3), ",,\r\n");
    folder.Write(BoxFile(u"4471"_s, 4), "");
    OpenWindow();
    EXPECT_EQ(Aux(0)->Text(), u"Gate\ncode 17\n"_s);
    EXPECT_EQ(Aux(1)->Text(), u"Mind, the dog\n\n"_s);
    EXPECT_EQ(Aux(2)->Text(), u"open\n"_s);
    EXPECT_EQ(Aux(3)->Text(), u"\n\n\n"_s);
    EXPECT_EQ(Aux(4)->Text(), QString());
    EXPECT_EQ(Aux(5)->Text(), QString());
    ClickSave(2);
    EXPECT_EQ(folder.Read(BoxFile(u"4471"_s, 0)), "Gate\r\ncode 17\r\n\r\n");
    EXPECT_EQ(folder.Read(BoxFile(u"4471"_s, 1)), "Mind, the dog\r\n\r\n\r\n");
    EXPECT_EQ(folder.Read(BoxFile(u"4471"_s, 2)), "open\r\n\r\n");
    EXPECT_EQ(folder.Read(BoxFile(u"4471"_s, 5)), "\r\n");
}

TEST_F(AuxiliaryScreen, MegabyteWithoutALineEndIsShownAndSaved) {
    const QByteArray line(1'000'000, 'x');
    folder.Write(BoxFile(u"4471"_s, 3), line);
    OpenWindow();
    EXPECT_EQ(Aux(3)->Text(), QString::fromLatin1(line) + u'\n');
    DoubleClick(Aux(3));
    EXPECT_EQ(Big()->Text().size(), 1'000'001);
    ClickSave(4);
    ClickSave(2);
    EXPECT_EQ(folder.Read(BoxFile(u"4471"_s, 3)), line + "\r\n\r\n");
}

TEST_F(AuxiliaryScreen, MegabyteOfTextIsShownAndSaved) {
    QByteArray lines;
    for (int i = 0; i < 20'000; ++i)
        lines += QByteArray::number(i).rightJustified(50, '.') + "\r\n";
    folder.Write(BoxFile(u"4471"_s, 0), lines);
    OpenWindow();
    EXPECT_EQ(Aux(0)->Text(), QString::fromLatin1(lines).replace(u"\r\n"_s, u"\n"_s));
    ClickSave(2);
    EXPECT_EQ(folder.Read(BoxFile(u"4471"_s, 0)), lines + "\r\n");
}

TEST_F(AuxiliaryScreen, WindowFitsTheScreenWithoutScrolling) {
    OpenThree();
    screens.Find(screen)->resize(1024, 768);
    Item(u"mnuAux"_s)->trigger();
    QCoreApplication::processEvents();
    for (const QString& name : {u"txtAux(0)"_s, u"txtAux(5)"_s, u"cmdSaveAux(2)"_s, u"cmdNav(9)"_s})
        EXPECT_EQ(Control(name)->visibleRegion().boundingRect(), Control(name)->rect())
            << name.toStdString();
    EXPECT_EQ(screens.Find(screen)->size(), QSize(1024, 768));
}

TEST_F(AuxiliaryScreen, LongNameDoesNotWidenTheScreen) {
    WriteCustomers({SampleCustomer{.businessName = QByteArray(45, 'W')}});
    Open(2);
    screens.Find(screen)->resize(1024, 768);
    Item(u"mnuAux"_s)->trigger();
    EXPECT_EQ(screens.Find(screen)->size(), QSize(1024, 768));
}
