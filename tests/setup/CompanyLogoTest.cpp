#include "setup/CompanyLogo.h"

#include "support/OfficeTest.h"

#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

const QString filter =
    u"Pictures |(*.bmp;*.BMP;*.ico;*.ICO; *.cur; *.CUR;*jpg;*JPG; *.EMF)|All|*.*"_s;

const QString wide = u"/home/dairy/wide.bmp"_s;
const QString green = u"/home/dairy/Logo, gr\u00fcn.jpg"_s;
const QString letter = u"/home/dairy/letter.txt"_s;

const QString logoFile = u"CompanyLogo.txt"_s;
const QString logoBackup = u"Backup/CompanyLogo.txt"_s;
const QString sizeFile = u"LogoSettings.txt"_s;
const QString sizeBackup = u"Backup/LogoSettings.txt"_s;

} // namespace

class CompanyLogoTest : public OfficeTest {
protected:
    CompanyLogoTest() { pictures.Files = {{wide, {3000, 900}}, {green, {600, 300}}, {letter, {}}}; }

    void Find(const QString& path) {
        user.ExpectFileDialog(filter, path);
        EXPECT_TRUE(logo.Find());
    }
    void CancelFind() {
        user.ExpectFileDialog(filter, std::nullopt);
        EXPECT_FALSE(logo.Find());
    }
    void Store() {
        user.ExpectMessage(u"Your Logo has been Stored"_s);
        EXPECT_TRUE(logo.Store());
    }
    void Clear(Answer answer) {
        user.ExpectQuestion(u"This will Delete your Company Logo"_s, u"Delete Logo"_s, answer);
        logo.Clear();
    }
    void Restart() {
        live = LiveSettings();
        dialog = CommonDialog();
        office.setup.LoadAll();
    }
    void SetSize(float width, float height) {
        live.logoWidth = width;
        live.logoHeight = height;
    }

    LiveSettings& live = office.settings;
    CompanyLogo& logo = office.logo;
    CommonDialog& dialog = office.commonDialog;
};

// Loading.

TEST_F(CompanyLogoTest, WithoutFilesThereIsNoLogoOf1440By1440AndNothingIsWritten) {
    EXPECT_TRUE(live.logo.IsEmpty());
    EXPECT_EQ(live.logoWidth, 1440);
    EXPECT_EQ(live.logoHeight, 1440);
    EXPECT_FALSE(folder.Has(logoFile));
    EXPECT_FALSE(folder.Has(sizeFile));
}

TEST_F(CompanyLogoTest, StoredPathIsReadAndItsPictureLoaded) {
    folder.Write(logoFile, "\"/home/dairy/Logo, gr\xfcn.jpg\"\r\n");
    folder.Write(sizeFile, "900,1200.5\r\n");
    Restart();
    EXPECT_EQ(live.logoFile, green);
    EXPECT_EQ(live.logo.Width, 600);
    EXPECT_EQ(live.logo.Height, 300);
    EXPECT_EQ(live.logoWidth, 900);
    EXPECT_EQ(live.logoHeight, 1200.5F);
}

TEST_F(CompanyLogoTest, PathOfAFileThatHasGoneIsNoLogoWithoutAMessageAndStays) {
    folder.Write(logoFile, "\"/home/dairy/gone.bmp\"\r\n");
    const auto before = folder.Contents();
    Restart();
    EXPECT_TRUE(live.logo.IsEmpty());
    EXPECT_EQ(folder.Contents(), before);
    office.logo.PrintSample(printer);
    EXPECT_TRUE(printer.Pictures.empty());
}

TEST_F(CompanyLogoTest, LoadWithoutASizeFileWritesItWhenThereIsAPicture) {
    folder.Write(logoFile, "\"/home/dairy/wide.bmp\"\r\n");
    Restart();
    EXPECT_EQ(folder.Read(sizeFile), "1440,1440\r\n");
}

TEST_F(CompanyLogoTest, LoadWithoutASizeFileWritesNoneWhenThePictureHasGone) {
    folder.Write(logoFile, "\"/home/dairy/gone.bmp\"\r\n");
    Restart();
    EXPECT_FALSE(folder.Has(sizeFile));
    EXPECT_EQ(live.logoWidth, 1440);
    EXPECT_EQ(live.logoHeight, 1440);
}

TEST_F(CompanyLogoTest, FilesLostButInBackupAreBroughtBack) {
    folder.Write(logoBackup, "\"/home/dairy/wide.bmp\"\r\n");
    folder.Write(sizeBackup, "500,600\r\n");
    Restart();
    EXPECT_EQ(live.logo.Width, 3000);
    EXPECT_EQ(live.logoWidth, 500);
    EXPECT_EQ(live.logoHeight, 600);
    EXPECT_EQ(folder.Read(logoFile), "\"/home/dairy/wide.bmp\"\r\n");
    EXPECT_EQ(folder.Read(sizeFile), "500,600\r\n");
}

TEST_F(CompanyLogoTest, StoredWidthOf3000AndHeightOf2000AreReadAs1440And2000) {
    folder.Write(logoFile, "\"/home/dairy/wide.bmp\"\r\n");
    folder.Write(sizeFile, "3000,2000\r\n");
    Restart();
    EXPECT_EQ(live.logoWidth, 1440);
    EXPECT_EQ(live.logoHeight, 2000);
    EXPECT_EQ(folder.Read(sizeFile), "3000,2000\r\n");
}

TEST_F(CompanyLogoTest, StoredSizeIsLimitedAt2880) {
    folder.Write(sizeFile, "2880,2880.5\r\n");
    Restart();
    EXPECT_EQ(live.logoWidth, 2880);
    EXPECT_EQ(live.logoHeight, 1440);
}

TEST_F(CompanyLogoTest, StoredSizeAbove1800SurvivesALoadAndTheFirstClickWrapsIt) {
    const std::vector<std::pair<std::function<void()>, float>> widths = {
        {[this] { logo.WidthLarger(); }, 360.0F}, {[this] { logo.WidthSmaller(); }, 1950.0F}};
    for (const auto& [step, expected] : widths) {
        folder.Write(sizeFile, "2000,2500\r\n");
        Restart();
        EXPECT_EQ(live.logoWidth, 2000);
        EXPECT_EQ(live.logoHeight, 2500);
        step();
        EXPECT_EQ(live.logoWidth, expected);
        EXPECT_EQ(live.logoHeight, 2500);
    }
    logo.HeightLarger();
    EXPECT_EQ(live.logoHeight, 360);
}

TEST_F(CompanyLogoTest, PictureThatFailsAtTheStartIsABadPictureAndChangesNoFile) {
    folder.Write(logoFile, "\"/home/dairy/letter.txt\"\r\n");
    const auto before = folder.Contents();
    const RuntimeFailure failure = FailureOf([this] { Restart(); });
    EXPECT_EQ(failure.Kind(), FailureKind::BadPicture);
    EXPECT_EQ(folder.Contents(), before);
}

TEST_F(CompanyLogoTest, EmptyLogoFileStopsTheStart) {
    folder.Write(logoFile, "");
    EXPECT_EQ(FailureOf([this] { Restart(); }).Kind(), FailureKind::ReadPastEnd);
}

TEST_F(CompanyLogoTest, SizeFileCutShortOrWithAWordStopsTheStart) {
    folder.Write(sizeFile, "1440\r\n");
    EXPECT_EQ(FailureOf([this] { Restart(); }).Kind(), FailureKind::ReadPastEnd);
    folder.Write(sizeFile, "1440,wide\r\n");
    EXPECT_EQ(FailureOf([this] { Restart(); }).Kind(), FailureKind::TypeMismatch);
    EXPECT_EQ(folder.Read(sizeFile), "1440,wide\r\n");
}

// Find.

TEST_F(CompanyLogoTest, FindShowsThePictureAndKeepsItsPathInTheDialogOnly) {
    Find(wide);
    EXPECT_EQ(live.logo.Width, 3000);
    EXPECT_EQ(live.logo.Height, 900);
    EXPECT_EQ(dialog.FileName, wide);
    EXPECT_EQ(live.logoFile, QString());
    EXPECT_EQ(live.logoWidth, 1440);
    EXPECT_EQ(live.logoHeight, 1440);
    EXPECT_FALSE(folder.Has(logoFile));
    EXPECT_FALSE(folder.Has(sizeFile));
}

TEST_F(CompanyLogoTest, FindTurnsRaisingOnCancelOn) {
    EXPECT_FALSE(dialog.RaisesErrorOnCancel);
    Find(wide);
    EXPECT_TRUE(dialog.RaisesErrorOnCancel);
}

TEST_F(CompanyLogoTest, CancelledFindLeavesPictureAndPathAndTurnsRaisingOnCancelOn) {
    CancelFind();
    EXPECT_TRUE(dialog.RaisesErrorOnCancel);
    EXPECT_TRUE(live.logo.IsEmpty());
    EXPECT_EQ(dialog.FileName, QString());
    Find(wide);
    CancelFind();
    EXPECT_EQ(live.logo.Width, 3000);
    EXPECT_EQ(dialog.FileName, wide);
    EXPECT_TRUE(dialog.RaisesErrorOnCancel);
    Store();
    EXPECT_EQ(folder.Read(logoFile), "\"/home/dairy/wide.bmp\"\r\n");
}

TEST_F(CompanyLogoTest, FoundFileThatIsNoPictureIsABadPictureAndChangesNoFile) {
    Find(wide);
    Store();
    const auto before = folder.Contents();
    user.ExpectFileDialog(filter, letter);
    EXPECT_EQ(FailureOf([this] { logo.Find(); }).Kind(), FailureKind::BadPicture);
    EXPECT_EQ(folder.Contents(), before);
}

// Store.

TEST_F(CompanyLogoTest, StoreBeforeAnyFindDoesNothing) {
    folder.Write(logoFile, "\"/home/dairy/wide.bmp\"\r\n");
    folder.Write(sizeFile, "500,600\r\n");
    Restart();
    const auto before = folder.Contents();
    EXPECT_FALSE(logo.Store());
    CancelFind();
    EXPECT_FALSE(logo.Store());
    EXPECT_EQ(folder.Contents(), before);
    EXPECT_EQ(live.logoFile, wide);
}

TEST_F(CompanyLogoTest, StoreWritesPathAndSizeAndTells) {
    Find(green);
    SetSize(1390, 410.5F);
    Store();
    EXPECT_EQ(folder.Read(logoFile), "\"/home/dairy/Logo, gr\xfcn.jpg\"\r\n");
    EXPECT_EQ(folder.Read(sizeFile), "1390,410.5\r\n");
    EXPECT_EQ(live.logoFile, green);
    Restart();
    EXPECT_EQ(live.logo.Width, 600);
    EXPECT_EQ(live.logoWidth, 1390);
    EXPECT_EQ(live.logoHeight, 410.5F);
}

TEST_F(CompanyLogoTest, StoredBytesAreTheSameInAGermanOffice) {
    UseLocale("de_DE.UTF-8");
    Find(green);
    SetSize(1390, 410.5F);
    Store();
    EXPECT_EQ(folder.Read(logoFile), "\"/home/dairy/Logo, gr\xfcn.jpg\"\r\n");
    EXPECT_EQ(folder.Read(sizeFile), "1390,410.5\r\n");
    Restart();
    EXPECT_EQ(live.logo.Width, 600);
    EXPECT_EQ(live.logoHeight, 410.5F);
}

TEST_F(CompanyLogoTest, StoreDeletesTheLogoFileWithItsBackupAndWritesTheSizeOver) {
    folder.Write(logoFile, "\"/home/dairy/an older and longer path.bmp\"\r\n");
    folder.Write(logoBackup, "\"/home/dairy/old.bmp\"\r\n");
    folder.Write(sizeFile, "1111.25,1111.25\r\n");
    folder.Write(sizeBackup, "700,700\r\n");
    Find(wide);
    Store();
    EXPECT_EQ(folder.Read(logoFile), "\"/home/dairy/wide.bmp\"\r\n");
    EXPECT_FALSE(folder.Has(logoBackup));
    EXPECT_EQ(folder.Read(sizeFile), "1440,1440\r\n");
    EXPECT_EQ(folder.Read(sizeBackup), "700,700\r\n");
}

TEST_F(CompanyLogoTest, StoreChangesNoOtherFile) {
    folder.Write(u"Settings.txt"_s, "8\r\n5\r\n#TRUE#\r\n#TRUE#\r\n#FALSE#\r\n");
    Find(wide);
    auto expected = folder.Contents();
    Store();
    expected[logoFile] = "\"/home/dairy/wide.bmp\"\r\n";
    expected[sizeFile] = "1440,1440\r\n";
    EXPECT_EQ(folder.Contents(), expected);
}

TEST_F(CompanyLogoTest, StoreAfterClearWritesTheFoundPathAndNoSize) {
    Find(wide);
    Clear(Answer::Yes);
    Store();
    EXPECT_EQ(folder.Read(logoFile), "\"/home/dairy/wide.bmp\"\r\n");
    EXPECT_FALSE(folder.Has(sizeFile));
    EXPECT_TRUE(live.logo.IsEmpty());
}

TEST_F(CompanyLogoTest, PathThatTheFileCouldNotGiveBackIsToldAndNotStored) {
    folder.Write(logoFile, "\"/home/dairy/old.bmp\"\r\n");
    for (const QString& path :
         {u"/home/dairy/\u041b\u043e\u0433\u043e.bmp"_s, u"/home/dairy/15\" sign.bmp"_s}) {
        pictures.Files[path] = {600, 300};
        Find(path);
        user.ExpectMessage(
            u"The name of this picture or of its folder has a character that can't be stored.\n"
            u"Rename it or move it to your data folder, and find it again."_s);
        EXPECT_FALSE(logo.Store());
        EXPECT_EQ(folder.Read(logoFile), "\"/home/dairy/old.bmp\"\r\n");
        EXPECT_FALSE(folder.Has(u"LogoSettings.txt"_s));
    }
}

TEST_F(CompanyLogoTest, FolderThatCannotBeWrittenFailsTheStore) {
    folder.Write(logoFile, "\"/home/dairy/old.bmp\"\r\n");
    Find(wide);
    DropRootRights(folder);
    QFile::setPermissions(folder.Path(), QFile::ReadOwner | QFile::ExeOwner);
    EXPECT_EQ(FailureOf([this] { logo.Store(); }).Kind(), FailureKind::PermissionDenied);
    QFile::setPermissions(folder.Path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    EXPECT_EQ(folder.Read(logoFile), "\"/home/dairy/old.bmp\"\r\n");
}

TEST_F(CompanyLogoTest, FullDiskFailsTheStore) {
    Find(wide);
    const FullDisk full(4);
    EXPECT_EQ(FailureOf([this] { logo.Store(); }).Kind(), FailureKind::DiskFull);
    EXPECT_FALSE(folder.Has(sizeFile));
}

// Which saves write the size.

TEST_F(CompanyLogoTest, SaveOfTheSetupScreenWritesTheSizeWhenThereIsAPicture) {
    live.txtBusiness[0] = u"Corner Dairy"_s;
    live.txtBusiness[6] = u"217-555-0199"_s;
    EXPECT_TRUE(office.setup.SaveAll());
    EXPECT_FALSE(folder.Has(sizeFile));
    Find(wide);
    SetSize(410, 1800);
    EXPECT_TRUE(office.setup.SaveAll());
    EXPECT_EQ(folder.Read(sizeFile), "410,1800\r\n");
    EXPECT_FALSE(folder.Has(logoFile));
}

TEST_F(CompanyLogoTest, SaveOfTheDeliveryScreenAndStepsWriteNoSize) {
    Find(wide);
    office.settingsStore.SaveAppSettings();
    logo.WidthSmaller();
    logo.WidthLarger();
    logo.HeightSmaller();
    logo.HeightLarger();
    logo.MakeWidthEqualHeight();
    logo.MakeHeightEqualWidth();
    logo.RestoreSize();
    EXPECT_FALSE(folder.Has(sizeFile));
}

// Clear.

TEST_F(CompanyLogoTest, ClearAnsweredNoLeavesLogoFilesAndSizes) {
    Find(wide);
    SetSize(500, 600);
    Store();
    folder.Write(logoBackup, "\"/home/dairy/wide.bmp\"\r\n");
    const auto before = folder.Contents();
    Clear(Answer::No);
    EXPECT_EQ(live.logo.Width, 3000);
    EXPECT_EQ(live.logoFile, wide);
    EXPECT_EQ(live.logoWidth, 500);
    EXPECT_EQ(live.logoHeight, 600);
    EXPECT_EQ(folder.Contents(), before);
}

TEST_F(CompanyLogoTest, ClearAnsweredYesDeletesTheLogoFileWithItsBackupAndKeepsTheSize) {
    Find(wide);
    SetSize(500, 600);
    Store();
    folder.Write(logoBackup, "\"/home/dairy/wide.bmp\"\r\n");
    folder.Write(sizeBackup, "700,700\r\n");
    auto expected = folder.Contents();
    expected.erase(logoFile);
    expected.erase(logoBackup);
    Clear(Answer::Yes);
    EXPECT_EQ(folder.Contents(), expected);
    EXPECT_EQ(folder.Read(sizeFile), "500,600\r\n");
    EXPECT_TRUE(live.logo.IsEmpty());
    EXPECT_EQ(live.logoWidth, 500);
    EXPECT_EQ(live.logoHeight, 600);
    Restart();
    EXPECT_TRUE(live.logo.IsEmpty());
    EXPECT_EQ(live.logoWidth, 500);
    EXPECT_EQ(live.logoHeight, 600);
}

TEST_F(CompanyLogoTest, ClearWithoutALogoAsksAndChangesNothing) {
    const auto before = folder.Contents();
    Clear(Answer::Yes);
    EXPECT_EQ(folder.Contents(), before);
    EXPECT_TRUE(live.logo.IsEmpty());
}

// Size.

TEST_F(CompanyLogoTest, WidthStepsOf50RunFrom360To1800AndWrap) {
    const std::vector<std::pair<float, float>> smaller = {
        {1440, 1390}, {1800, 1750}, {411, 361},  {410, 360}, {409, 360},
        {361, 360},   {360, 1800},  {359, 1800}, {0, 1800},  {2880, 2830}};
    for (const auto& [width, expected] : smaller) {
        SetSize(width, 777);
        logo.WidthSmaller();
        EXPECT_EQ(live.logoWidth, expected) << width;
        EXPECT_EQ(live.logoHeight, 777);
    }
    const std::vector<std::pair<float, float>> larger = {
        {1440, 1490}, {360, 410},  {1749, 1799}, {1750, 1800}, {1751, 1800},
        {1780, 1800}, {1800, 360}, {1801, 360},  {2880, 360},  {300, 350}};
    for (const auto& [width, expected] : larger) {
        SetSize(width, 777);
        logo.WidthLarger();
        EXPECT_EQ(live.logoWidth, expected) << width;
        EXPECT_EQ(live.logoHeight, 777);
    }
}

TEST_F(CompanyLogoTest, HeightStepsOf50AreNotHeldAtTheEnds) {
    const std::vector<std::pair<float, float>> smaller = {
        {1440, 1390}, {1800, 1750}, {410, 360},  {409, 359}, {380, 330},
        {361, 311},   {360, 1800},  {330, 1800}, {0, 1800},  {2880, 2830}};
    for (const auto& [height, expected] : smaller) {
        SetSize(777, height);
        logo.HeightSmaller();
        EXPECT_EQ(live.logoHeight, expected) << height;
        EXPECT_EQ(live.logoWidth, 777);
    }
    const std::vector<std::pair<float, float>> larger = {
        {1440, 1490}, {360, 410},  {1750, 1800}, {1751, 1801}, {1799, 1849},
        {1800, 360},  {1801, 360}, {1849, 360},  {2880, 360},  {300, 350}};
    for (const auto& [height, expected] : larger) {
        SetSize(777, height);
        logo.HeightLarger();
        EXPECT_EQ(live.logoHeight, expected) << height;
        EXPECT_EQ(live.logoWidth, 777);
    }
}

TEST_F(CompanyLogoTest, Width1780AndTwoClicksOnLargerGive1800Then360) {
    SetSize(1780, 1440);
    logo.WidthLarger();
    EXPECT_EQ(live.logoWidth, 1800);
    logo.WidthLarger();
    EXPECT_EQ(live.logoWidth, 360);
}

TEST_F(CompanyLogoTest, Width360AndAClickOnSmallerJumpsTo1800) {
    SetSize(360, 1440);
    logo.WidthSmaller();
    EXPECT_EQ(live.logoWidth, 1800);
}

TEST_F(CompanyLogoTest, MakeSquareTakesTheOtherSide) {
    SetSize(500, 600);
    logo.MakeWidthEqualHeight();
    EXPECT_EQ(live.logoWidth, 600);
    EXPECT_EQ(live.logoHeight, 600);
    SetSize(500, 600);
    logo.MakeHeightEqualWidth();
    EXPECT_EQ(live.logoWidth, 500);
    EXPECT_EQ(live.logoHeight, 500);
}

TEST_F(CompanyLogoTest, RestoreSetsBothTo1440) {
    SetSize(500, 2880);
    logo.RestoreSize();
    EXPECT_EQ(live.logoWidth, 1440);
    EXPECT_EQ(live.logoHeight, 1440);
}

// On paper.

TEST_F(CompanyLogoTest, LogoIsCentredByTheWidthOfItsFileAndPaintedInItsAdjustedSize) {
    Find(wide);
    SetSize(1000, 500);
    logo.PaintOn(printer, 1234);
    ASSERT_EQ(printer.Pictures.size(), 1U);
    // Half of 12,240 less 3,000.
    EXPECT_EQ(printer.Pictures[0].x, 4620);
    EXPECT_EQ(printer.Pictures[0].y, 1234);
    EXPECT_EQ(printer.Pictures[0].width, 1000);
    EXPECT_EQ(printer.Pictures[0].height, 500);
}

TEST_F(CompanyLogoTest, LogoIsCentredOnThePageTheWayRoundItIs) {
    Find(wide);
    SetSize(1000, 500);
    printer.SetPage(Orientation::Landscape, false);
    logo.PaintOn(printer, 720);
    printer.ShortSide = 9001;
    printer.SetPage(Orientation::Portrait, false);
    logo.PaintOn(printer, 720);
    ASSERT_EQ(printer.Pictures.size(), 2U);
    // Half of 15,840 less 3,000, and of 9,001 less 3,000.
    EXPECT_EQ(printer.Pictures[0].x, 6420);
    EXPECT_EQ(printer.Pictures[1].x, 3000.5);
    for (const auto& painted : printer.Pictures) {
        EXPECT_EQ(painted.y, 720);
        EXPECT_EQ(painted.width, 1000);
        EXPECT_EQ(painted.height, 500);
    }
}

TEST_F(CompanyLogoTest, LogoWiderThanThePageBeginsLeftOfIt) {
    pictures.Files[wide] = {20000, 900};
    Find(wide);
    logo.PaintOn(printer, 720);
    ASSERT_EQ(printer.Pictures.size(), 1U);
    EXPECT_EQ(printer.Pictures[0].x, -3880);
}

TEST_F(CompanyLogoTest, WithoutALogoNothingIsPainted) {
    logo.PaintOn(printer, 720);
    EXPECT_TRUE(printer.Pictures.empty());
    Find(wide);
    Clear(Answer::Yes);
    logo.PaintOn(printer, 720);
    EXPECT_TRUE(printer.Pictures.empty());
}

class PrintSampleTest : public CompanyLogoTest {
protected:
    struct Frame {
        double x1, y1, x2, y2;
        quint32 color;
    };
    void ExpectFrames(const std::vector<Frame>& frames) {
        ASSERT_EQ(printer.Boxes.size(), frames.size());
        for (size_t i = 0; i < frames.size(); ++i) {
            SCOPED_TRACE(i);
            EXPECT_EQ(printer.Boxes[i].page, 1);
            EXPECT_EQ(printer.Boxes[i].x1, frames[i].x1);
            EXPECT_EQ(printer.Boxes[i].y1, frames[i].y1);
            EXPECT_EQ(printer.Boxes[i].x2, frames[i].x2);
            EXPECT_EQ(printer.Boxes[i].y2, frames[i].y2);
            EXPECT_EQ(printer.Boxes[i].color, frames[i].color);
            EXPECT_EQ(printer.Boxes[i].drawWidth, 2);
        }
    }
};

TEST_F(PrintSampleTest, FramesAreInTheBluesOfThePaletteByThePrintInColorFlagNotByTheBox) {
    live.PrintInColorFlag = true;
    live.ckColor = 0;
    live.BorderColor = 0x123456;
    logo.PrintSample(printer);
    ExpectFrames({{1080, 2160, 5400, 3600, 0xff0000},
                  {5760, 2160, 10800, 3600, 0xff0000},
                  {1080, 3960, 10800, 11520, 0xff0000},
                  {8640, 720, 10800, 1800, 0x800000},
                  {1080, 11880, 10800, 13680, 0x800000}});
}

TEST_F(PrintSampleTest, FramesAreBlackWithoutTheFlagWhateverTheBoxSays) {
    live.PrintInColorFlag = false;
    live.ckColor = 1;
    live.BorderColor = 0x123456;
    live.TextColor = 0x654321;
    logo.PrintSample(printer);
    ExpectFrames({{1080, 2160, 5400, 3600, 0},
                  {5760, 2160, 10800, 3600, 0},
                  {1080, 3960, 10800, 11520, 0},
                  {8640, 720, 10800, 1800, 0},
                  {1080, 11880, 10800, 13680, 0}});
}

TEST_F(PrintSampleTest, OnePageIsPrintedWithTheLogoAt720AndTheLineWidthEndsAt1) {
    Find(green);
    printer.DrawWidth = 7;
    logo.PrintSample(printer);
    ASSERT_EQ(printer.Pictures.size(), 1U);
    EXPECT_EQ(printer.Pictures[0].page, 1);
    EXPECT_EQ(printer.Pictures[0].x, 5820);
    EXPECT_EQ(printer.Pictures[0].y, 720);
    EXPECT_EQ(printer.Pictures[0].width, 1440);
    EXPECT_EQ(printer.Pictures[0].height, 1440);
    EXPECT_EQ(printer.DrawWidth, 1);
    EXPECT_EQ(printer.Jobs, 1);
    EXPECT_EQ(printer.JobName, u"Print Sample"_s);
    EXPECT_TRUE(printer.Texts.empty());
    EXPECT_TRUE(printer.Lines.empty());
    EXPECT_TRUE(printer.FilledBoxes.empty());
}

TEST_F(PrintSampleTest, LogoIsPaintedBeforeTheFrames) {
    using Mark = RecordingPrinter::Mark;
    Find(green);
    logo.PrintSample(printer);
    EXPECT_EQ(printer.Order, (std::vector<Mark>{Mark::Picture, Mark::Box, Mark::Box, Mark::Box,
                                                Mark::Box, Mark::Box}));
}

TEST_F(PrintSampleTest, PageIsNotSetUp) {
    printer.FontName = u"Courier New"_s;
    printer.ForeColor = 0x0000ff;
    live.CurrentPrintColor = 0x00ff00;
    logo.PrintSample(printer);
    EXPECT_TRUE(printer.Orientations.empty());
    EXPECT_TRUE(printer.Colors.empty());
    EXPECT_EQ(printer.FontName, u"Courier New"_s);
    EXPECT_EQ(printer.ForeColor, 0x0000ffU);
    EXPECT_EQ(live.CurrentPrintColor, 0x00ff00U);
}

TEST_F(PrintSampleTest, PrinterThatStopsIsAFailure) {
    printer.FailingBox = 4;
    EXPECT_EQ(FailureOf([this] { logo.PrintSample(printer); }).Kind(), FailureKind::PrinterFailure);
    EXPECT_EQ(printer.Boxes.size(), 3U);
    EXPECT_EQ(printer.Jobs, 0);
}
