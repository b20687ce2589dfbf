#include "customers/CustomerReport.h"

#include "customers/CustomerTest.h"

#include <QFile>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const QString customerFile = u"CustomerData.txt"_s;
const QString question = u"Click Yes to print a Customer Report"_s;
const QString questionTitle = u"Customer Report"_s;
const QString notPrinted = u"The Customer List will not be Printed"_s;
const QString printError = u"A Print Error has occurred"_s;
const QString printErrorTitle = u"Print Error"_s;

// Twips. On the recording printer a line of the body is 240 twips high.
constexpr double bodyTop = 3240;
/// That the dialog proposes where the settings have not been changed.
constexpr int copies = 3;

} // namespace

class CustomerReportTest : public CustomerTest {
protected:
    CustomerReportTest() {
        office.settings.BusinessData = {
            u"Tessel Gravel"_s, u"1 Quarry Road"_s, QString(), u"Springfield"_s, u"IL"_s,
            u"62701"_s,         u"217-555-0100"_s,  QString(), QString()};
        office.settings.DocumentFont = u"Courier"_s;
    }

    /// A whole report on the printer that the machine takes by itself.
    void Print() {
        user.ExpectQuestion(question, questionTitle, Answer::Yes);
        user.ExpectPrinterDialog(copies, PrintDestination{});
        report.cmdPrintCustomers_Click();
    }
    void LoadMany(int count) {
        QList<SampleCustomer> records;
        for (int number = 1; number <= count; ++number)
            records += SampleCustomer{.businessName = "Shop " + QByteArray::number(number)};
        LoadWith(records);
    }
    /// Texts of the body alone.
    std::vector<RecordingPrinter::Text> Body(int page = 1) const {
        std::vector<RecordingPrinter::Text> body;
        std::copy_if(printer.Texts.begin(), printer.Texts.end(), std::back_inserter(body),
                     [&](const auto& text) { return text.page == page && text.y >= bodyTop; });
        return body;
    }
    int Pages() const { return printer.Texts.empty() ? 0 : printer.Texts.back().page; }

    CustomerReport& report = office.customerReport;
};

// Asking

TEST_F(CustomerReportTest, NoPrintsNothing) {
    LoadThree();
    user.ExpectQuestion(question, questionTitle, Answer::No);
    report.cmdPrintCustomers_Click();
    EXPECT_TRUE(printer.Texts.empty());
    EXPECT_TRUE(user.PrinterDialogs.empty());
}

TEST_F(CustomerReportTest, CancelledPrinterDialogIsToldAndPrintsNothing) {
    LoadThree();
    user.ExpectQuestion(question, questionTitle, Answer::Yes);
    user.ExpectPrinterDialog(copies, std::nullopt);
    user.ExpectMessage(notPrinted);
    report.cmdPrintCustomers_Click();
    EXPECT_TRUE(printer.Texts.empty());
    EXPECT_EQ(printer.Jobs, 0);
    EXPECT_TRUE(user.Works.empty());
}

TEST_F(CustomerReportTest, JobGoesWhereTheDialogSaysUnderTheNameOfTheReport) {
    LoadThree();
    user.ExpectQuestion(question, questionTitle, Answer::Yes);
    user.ExpectPrinterDialog(copies, PrintDestination{.Printer = u"Office"_s, .Copies = 2});
    report.cmdPrintCustomers_Click();
    EXPECT_EQ(user.PrinterDialogs, (std::vector<std::pair<QString, QString>>{
                                       {QString(), u"Customer report 2026-03-09"_s}}));
    EXPECT_EQ(printer.Destinations,
              (std::vector<PrintDestination>{{.Printer = u"Office"_s, .Copies = 2}}));
}

TEST_F(CustomerReportTest, PaperIsTurned) {
    LoadThree();
    office.settings.ckColor = 1;
    Print();
    EXPECT_EQ(printer.Orientations, std::vector<Orientation>{Orientation::Landscape});
    EXPECT_EQ(printer.Colors, std::vector<bool>{true});
    office.settings.ckColor = 0;
    Print();
    EXPECT_EQ(printer.Colors, (std::vector<bool>{true, false}));
}

// The header

TEST_F(CustomerReportTest, HeaderHasTitleHeadingAndDate) {
    LoadThree();
    printer.FontBold = true;
    printer.FontUnderline = true;
    Print();
    const auto& title = printer.Find(u"Account Information"_s);
    EXPECT_EQ(title.fontSize, 14);
    EXPECT_FALSE(title.bold);
    EXPECT_FALSE(title.underline);
    EXPECT_EQ(title.fontName, u"Courier"_s);
    EXPECT_EQ(title.y, 720);
    EXPECT_EQ(title.x, (15840 - 19 * 140) / 2.0) << "in the middle of the turned paper";
    const auto& business = printer.Find(u"Tessel Gravel"_s);
    EXPECT_EQ(business.fontSize, 12);
    EXPECT_TRUE(business.bold);
    EXPECT_EQ(business.x, 1440);
    EXPECT_NEAR(business.y, 1152, 0.01);
    EXPECT_NEAR(printer.Find(u"1 Quarry Road"_s).y, 1440, 0.01);
    EXPECT_EQ(printer.Find(u"Springfield, IL. 62701"_s).x, 1440);
    EXPECT_EQ(printer.Find(u"Telephone: 217-555-0100"_s).fontSize, 10);
    const auto& date = printer.Find(u"3/9/2026"_s);
    EXPECT_EQ(date.x, 12960);
    EXPECT_EQ(date.y, 720);
    EXPECT_EQ(date.fontSize, 10);
}

TEST_F(CustomerReportTest, DateHasTheRegionsForm) {
    UseLocale("de_DE.UTF-8");
    LoadThree();
    Print();
    EXPECT_EQ(printer.Find(u"09.03.2026"_s).x, 12960);
}

TEST_F(CustomerReportTest, TextIsBlueOnAColourPrinterAndBlackOtherwise) {
    LoadThree();
    office.settings.ckColor = 1;
    Print();
    for (const auto& text : printer.Texts)
        EXPECT_EQ(text.color, 0xff0000U) << text.text.toStdString();
    printer.Texts.clear();
    office.settings.ckColor = 0;
    Print();
    for (const auto& text : printer.Texts)
        EXPECT_EQ(text.color, 0U) << text.text.toStdString();
}

// The body

TEST_F(CustomerReportTest, BlocksStandThreeToARowAtOneFourAndSevenInches) {
    LoadMany(4);
    Print();
    const std::tuple<QString, double, double> places[] = {{u"Shop 1"_s, 1440, 3240},
                                                          {u"Shop 2"_s, 5760, 3240},
                                                          {u"Shop 3"_s, 10080, 3240},
                                                          {u"Shop 4"_s, 1440, 4440}};
    for (const auto& [name, x, y] : places) {
        EXPECT_EQ(printer.Find(name).x, x);
        EXPECT_EQ(printer.Find(name).y, y);
        EXPECT_EQ(printer.Find(name).fontSize, 10);
        EXPECT_FALSE(printer.Find(name).bold);
    }
}

TEST_F(CustomerReportTest, BlockInTheUsaStyleHasFourLines) {
    SampleCustomer customer;
    customer.zip = "notprinted";
    LoadWith({customer});
    Print();
    const auto body = Body();
    const std::pair<QString, double> lines[] = {{u"Corner Grocery"_s, 3240},
                                                {u"12 Mill Road"_s, 3480},
                                                {u"Springfield, IL 62704"_s, 3720},
                                                {u"217-555-0199"_s, 3960}};
    ASSERT_EQ(body.size(), std::size(lines));
    for (size_t i = 0; i < body.size(); ++i) {
        EXPECT_EQ(body[i].text, lines[i].first);
        EXPECT_EQ(body[i].y, lines[i].second);
        EXPECT_EQ(body[i].x, 1440);
    }
}

TEST_F(CustomerReportTest, BlockInTheInternationalStyleHasFiveLinesAndItsRowsStandSixApart) {
    office.settings.cmdAddress = u"International Style Address"_s;
    SampleCustomer first;
    first.city = "Kensington";
    first.state = "";
    first.postalOrAddress4 = "London SW7";
    LoadWith({first, first, first, SampleCustomer{.businessName = "Next Row"}});
    Print();
    const auto body = Body();
    const std::pair<QString, double> lines[] = {{u"Corner Grocery"_s, 3240},
                                                {u"12 Mill Road"_s, 3480},
                                                {u"Kensington"_s, 3720},
                                                {u"London SW7"_s, 3960},
                                                {u"217-555-0199"_s, 4200}};
    ASSERT_GE(body.size(), std::size(lines));
    for (size_t i = 0; i < std::size(lines); ++i) {
        EXPECT_EQ(body[i].text, lines[i].first);
        EXPECT_EQ(body[i].y, lines[i].second);
    }
    EXPECT_EQ(printer.Find(u"Next Row"_s).y, 3240 + 6 * 240);
}

TEST_F(CustomerReportTest, EmptyFieldsKeepTheirLines) {
    SampleCustomer customer;
    customer.address1 = "";
    customer.city = "";
    customer.state = "";
    customer.postalOrAddress4 = "";
    LoadWith({customer});
    Print();
    const auto body = Body();
    ASSERT_EQ(body.size(), 3U);
    EXPECT_EQ(body[1].text, u",  "_s);
    EXPECT_EQ(body[1].y, 3720);
    EXPECT_EQ(body[2].text, u"217-555-0199"_s);
    EXPECT_EQ(body[2].y, 3960);
}

TEST_F(CustomerReportTest, PersonSavedOnlyOncePrintsNoName) {
    LoadWith({Person("Lee", "Ann", "1002", "Mr/Mrs")});
    Print();
    const auto body = Body();
    ASSERT_EQ(body.size(), 3U);
    EXPECT_EQ(body[0].text, u"12 Mill Road"_s);
    EXPECT_EQ(body[0].y, 3480);
}

TEST_F(CustomerReportTest, AccentsArePrinted) {
    LoadWith({SampleCustomer{.businessName = "Caf\xe9 \x80"}});
    Print();
    EXPECT_EQ(printer.Find(u"Caf\u00e9 \u20ac"_s).x, 1440);
}

TEST_F(CustomerReportTest, CustomersStandInTheOrderOfTheFile) {
    LoadThree();
    Print();
    QStringList names;
    for (const auto& text : Body()) {
        if (text.y == bodyTop)
            names += text.text;
    }
    EXPECT_EQ(names, (QStringList{u"Corner Grocery"_s, u"Anvil Works"_s}));
}

TEST_F(CustomerReportTest, PageEndsWhenLessThanFiveLinesRemain) {
    LoadMany(22);
    Print();
    EXPECT_EQ(printer.Find(u"Shop 19"_s).page, 1);
    EXPECT_EQ(printer.Find(u"Shop 19"_s).y, 10440);
    EXPECT_EQ(printer.Find(u"Shop 22"_s).page, 2);
    EXPECT_EQ(printer.Find(u"Shop 22"_s).y, bodyTop);
    EXPECT_EQ(printer.Jobs, 1);
}

TEST_F(CustomerReportTest, PageIsGoneOnWithWhileFiveLinesRemain) {
    LoadMany(22);
    // Behind the seventh row five lines are left to the twip.
    printer.ShortSide = 11640 + 1200;
    Print();
    EXPECT_EQ(printer.Find(u"Shop 22"_s).page, 1);
    printer.Texts.clear();
    printer.ShortSide -= 1;
    Print();
    EXPECT_EQ(printer.Find(u"Shop 22"_s).page, 2);
}

TEST_F(CustomerReportTest, EveryPageHasTheHeader) {
    LoadMany(22);
    Print();
    for (const QString& heading : {u"Account Information"_s, u"Tessel Gravel"_s, u"3/9/2026"_s}) {
        QList<std::pair<int, double>> places;
        for (const auto& text : printer.Texts) {
            if (text.text == heading)
                places += {text.page, text.x};
        }
        ASSERT_EQ(places.size(), 2) << heading.toStdString();
        EXPECT_EQ(places[0].first, 1);
        EXPECT_EQ(places[1].first, 2);
        EXPECT_EQ(places[0].second, places[1].second);
    }
}

TEST_F(CustomerReportTest, RowThatFillsThePageIsFollowedByAHeader) {
    LoadMany(21);
    Print();
    EXPECT_EQ(Pages(), 2);
    EXPECT_TRUE(Body(2).empty());
}

TEST_F(CustomerReportTest, EmptyFilePrintsTheHeaderAlone) {
    folder.Write(customerFile, {});
    customers.Load();
    Print();
    EXPECT_EQ(Pages(), 1);
    EXPECT_TRUE(Body().empty());
    EXPECT_EQ(printer.Jobs, 1);
}

TEST_F(CustomerReportTest, AllRecordsOfTheFileArePrintedAndNoneBeyondIt) {
    LoadMany(2);
    customers.CustomerCount = 1;
    Print();
    EXPECT_EQ(printer.Find(u"Shop 2"_s).x, 5760);
    printer.Texts.clear();
    customers.CustomerCount = 3;
    Print();
    EXPECT_EQ(Body().size(), 8U);
}

TEST_F(CustomerReportTest, RecordThatIsCutShortIsPrintedAsFarAsItGoes) {
    LoadBytes(SampleCustomer{.businessName = "Anvil Works"}.Bytes().left(170), 1);
    Print();
    EXPECT_EQ(printer.Find(u"Anvil Works"_s).y, bodyTop);
    EXPECT_EQ(printer.Find(u"Springfield,  "_s).y, 3720);
}

TEST_F(CustomerReportTest, ReportChangesNoFile) {
    LoadThree();
    const auto before = folder.Contents();
    Print();
    EXPECT_EQ(folder.Contents(), before);
}

// Errors, and stopping

TEST_F(CustomerReportTest, PrinterThatDiesIsToldAndNothingIsPrinted) {
    LoadThree();
    printer.FailingText = 6;
    user.ExpectQuestion(question, questionTitle, Answer::Yes);
    user.ExpectPrinterDialog(copies, PrintDestination{});
    user.ExpectMessage(printError, printErrorTitle);
    report.cmdPrintCustomers_Click();
    EXPECT_EQ(printer.Jobs, 0);
    EXPECT_EQ(printer.AbandonedJobs, 1);
    EXPECT_FALSE(user.IsWorkShown);
    EXPECT_EQ(user.BusyChanges, (std::vector<bool>{true, false}));
}

TEST_F(CustomerReportTest, PrinterThatRefusesTheJobIsTold) {
    LoadThree();
    printer.FailsAtEndOfJob = true;
    user.ExpectQuestion(question, questionTitle, Answer::Yes);
    user.ExpectPrinterDialog(copies, PrintDestination{});
    user.ExpectMessage(printError, printErrorTitle);
    report.cmdPrintCustomers_Click();
    EXPECT_EQ(printer.AbandonedJobs, 1);
}

TEST_F(CustomerReportTest, UnreadableFileIsAPrintErrorAndTheProgramGoesOn) {
    LoadThree();
    ASSERT_TRUE(QFile::setPermissions(folder.PathOf(customerFile), QFile::Permissions()));
    DropRootRights(folder);
    user.ExpectQuestion(question, questionTitle, Answer::Yes);
    user.ExpectPrinterDialog(copies, PrintDestination{});
    user.ExpectMessage(printError, printErrorTitle);
    report.cmdPrintCustomers_Click();
    EXPECT_EQ(printer.AbandonedJobs, 1);
}

TEST_F(CustomerReportTest, WholeWorkIsShownAsBusyWithItsProgress) {
    LoadMany(7);
    Print();
    EXPECT_EQ(user.BusyChanges, (std::vector<bool>{true, false}));
    EXPECT_EQ(user.Works,
              (std::vector<std::pair<QString, int>>{{u"Printing the customers..."_s, 7}}));
    EXPECT_EQ(user.StepsDone, (std::vector<int>{3, 6}));
    EXPECT_FALSE(user.IsWorkShown);
}

TEST_F(CustomerReportTest, StoppedReportCountsAsCancelledAndLeavesNoHalfJob) {
    LoadMany(30);
    const auto before = folder.Contents();
    user.StopsAtStep = 12;
    user.ExpectQuestion(question, questionTitle, Answer::Yes);
    user.ExpectPrinterDialog(copies, PrintDestination{});
    bool isWorkShownBehindMessage = true;
    user.WhileMessageIsOpen = [&] { isWorkShownBehindMessage = user.IsWorkShown; };
    user.ExpectMessage(notPrinted);
    report.cmdPrintCustomers_Click();
    EXPECT_FALSE(isWorkShownBehindMessage);
    EXPECT_EQ(user.StepsDone.back(), 12);
    EXPECT_EQ(printer.Jobs, 0);
    EXPECT_EQ(printer.AbandonedJobs, 1);
    EXPECT_EQ(user.BusyChanges, (std::vector<bool>{true, false}));
    EXPECT_EQ(folder.Contents(), before);
}

TEST_F(CustomerReportTest, StoppedReportLeavesNoFileOpen) {
    LoadMany(30);
    user.StopsAtStep = 3;
    user.ExpectQuestion(question, questionTitle, Answer::Yes);
    user.ExpectPrinterDialog(copies, PrintDestination{});
    user.ExpectMessage(notPrinted);
    report.cmdPrintCustomers_Click();
    char byte = 0;
    const RuntimeFailure failure =
        FailureOf([&] { office.disk.ReadRecord(office.disk.DiskFile, 1, &byte, sizeof byte); });
    EXPECT_EQ(failure.Kind(), FailureKind::FileNotOpen);
}

TEST_F(CustomerReportTest, ReportAfterAStoppedOneIsWhole) {
    LoadMany(4);
    user.StopsAtStep = 3;
    user.ExpectQuestion(question, questionTitle, Answer::Yes);
    user.ExpectPrinterDialog(copies, PrintDestination{});
    user.ExpectMessage(notPrinted);
    report.cmdPrintCustomers_Click();
    user.StopsAtStep.reset();
    printer.Texts.clear();
    Print();
    EXPECT_EQ(printer.Jobs, 1);
    EXPECT_EQ(printer.Find(u"Account Information"_s).page, 1);
    EXPECT_EQ(printer.Find(u"Shop 4"_s).y, 4440);
}
