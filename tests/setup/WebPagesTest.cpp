#include "setup/WebPages.h"

#include "support/OfficeTest.h"

#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

const QString shortcut = u"Temp.url"_s;
const QString manual = u"https://example.com/manual?page=1&lang=en"_s;

} // namespace

class WebPagesTest : public OfficeTest {};

TEST_F(WebPagesTest, ShortcutFileIsTwoRawLines) {
    OpenWebPage(office.disk, browser, manual);
    EXPECT_EQ(folder.Read(shortcut),
              "[InternetShortcut]\r\nURL = https://example.com/manual?page=1&lang=en\r\n");
}

TEST_F(WebPagesTest, BrowserGetsTheAddressOnceTheFileIsThere) {
    OpenWebPage(office.disk, browser, manual);
    EXPECT_EQ(browser.Addresses, QStringList({manual}));
}

TEST_F(WebPagesTest, NextCallReplacesTheFileThatStayed) {
    folder.Write(shortcut, QByteArray(500, 'x'));
    folder.Write(u"Backup/Temp.url"_s, "kept");
    OpenWebPage(office.disk, browser, manual);
    OpenWebPage(office.disk, browser, u"https://example.com/a,b \"c\""_s);
    EXPECT_EQ(folder.Read(shortcut),
              "[InternetShortcut]\r\nURL = https://example.com/a,b \"c\"\r\n");
    EXPECT_EQ(folder.Read(u"Backup/Temp.url"_s), "kept");
    EXPECT_EQ(browser.Addresses, QStringList({manual, u"https://example.com/a,b \"c\""_s}));
}

TEST_F(WebPagesTest, AllFilesAreClosedBeforeTheBrowserIsCalled) {
    class Watch : public WebBrowser {
    public:
        explicit Watch(const TestFolder& watched) : folder(watched) {}
        QByteArray Seen;
        void Open(const QString&) override { Seen = folder.Read(shortcut); }

    private:
        const TestFolder& folder;
    } watch(folder);
    OpenWebPage(office.disk, watch, u"https://example.com/"_s);
    EXPECT_EQ(watch.Seen, "[InternetShortcut]\r\nURL = https://example.com/\r\n");
}

TEST_F(WebPagesTest, UnwritableFolderFailsByNameAndCallsNoBrowser) {
    DropRootRights(folder);
    const QByteArray path = folder.Path().toUtf8();
    ASSERT_EQ(::chmod(path.constData(), 0555), 0);
    const RuntimeFailure failure = FailureOf([&] { OpenWebPage(office.disk, browser, manual); });
    ASSERT_EQ(::chmod(path.constData(), 0755), 0);
    EXPECT_EQ(failure.Kind(), FailureKind::PermissionDenied);
    EXPECT_EQ(failure.Sentence(), u"Opening Temp.url for writing failed: Permission denied."_s);
    EXPECT_EQ(browser.Addresses, QStringList());
}

TEST_F(WebPagesTest, FullDiskFailsByNameAndCallsNoBrowser) {
    const RuntimeFailure failure = FailureOf([&] {
        const FullDisk disk(10);
        OpenWebPage(office.disk, browser, manual);
    });
    EXPECT_EQ(failure.Kind(), FailureKind::DiskFull);
    EXPECT_EQ(failure.Sentence(), u"Writing Temp.url failed: File too large."_s);
    EXPECT_EQ(browser.Addresses, QStringList());
}
