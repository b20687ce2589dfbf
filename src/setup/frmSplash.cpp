#include "setup/frmSplash.h"

#include "platform/ProgramTitle.h"
#include "platform/Theme.h"
#include "startup/Office.h"
#include "startup/Screens.h"

#include <QApplication>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int tick = 60;
constexpr int progressPerTick = 10;
constexpr int progressEnd = 100;
constexpr double pictureWidth = 14;
constexpr double pictureHeight = 8.2;
constexpr double welcomeWidth = 38;

const char* const welcomeTexts[] = {
    "It has a series of File Folders where information the program requires is stored.",
    "The Setup Screen will be displayed when you click our LOGO.",
    "Enter the information for each Folder.",
    "When you're completed, click on the Menu Button. That's it!",
    "The program will start.(Unless you forgot something)",
    "You may return to the Setup Screen at any time and make changes by Selecting Files | "
    "Create/Modify from the Main Menu Screen.",
    "If you see this screen after initial Setup, one of your files is missing.",
    "An unsuccessful attempt was made to restore it from the Backup Folder. You need to recreate "
    "it.",
};

} // namespace

frmSplash::frmSplash(Office& theOffice, Screens& allScreens)
    : Screen(u"frmSplash"_s, ProgramTitle()), office(theOffice), screens(allScreens) {
    fraWelcome = MakeWelcome();
    auto* columns = new QHBoxLayout(Body());
    columns->setSpacing(2 * cardGap);
    columns->addStretch(1);
    columns->addWidget(MakeTitle(), 0, Qt::AlignVCenter);
    columns->addWidget(fraWelcome, 0, Qt::AlignVCenter);
    columns->addStretch(1);

    cmdContinue = Named(new QPushButton(u"Continue"_s), u"cmdContinue"_s);
    cmdContinue->setToolTip(u"Starts the Program"_s);
    cmdContinue->setAutoDefault(true);
    connect(cmdContinue, &QPushButton::clicked, this, &frmSplash::cmdContinue_Click);
    AddMainAction(cmdContinue);
    cmdContinue->setFocus();

    Timer1 = Named(new QTimer(this), u"Timer1"_s);
    connect(Timer1, &QTimer::timeout, this, &frmSplash::Timer1_Timer);
    Timer1->start(tick);
}

QToolButton* frmSplash::MakePicture(int index, const QString& tip) {
    auto* picture = Named(new QToolButton, Indexed(u"Image1"_s, index));
    const QSize size(Em(pictureWidth), Em(pictureHeight));
    picture->setProperty("picture", true);
    picture->setIcon(LineIcon(u"title"_s, Theme::Current().accent, size, devicePixelRatioF()));
    picture->setIconSize(size);
    picture->setToolTip(tip);
    picture->setAccessibleName(tip);
    picture->setFocusPolicy(Qt::StrongFocus);
    connect(picture, &QToolButton::clicked, this, [this, index] { Image1_Click(index); });
    return picture;
}

QWidget* frmSplash::MakeTitle() {
    auto* title = new QWidget;
    auto* rows = new QVBoxLayout(title);
    rows->addWidget(MakePicture(0, u"Shows the Setup Screen"_s), 0, Qt::AlignHCenter);

    auto* lblProductName = Named(new QLabel(ProgramTitle()), u"lblProductName"_s);
    lblProductName->setToolTip(u"The Name of this program"_s);
    QFont large = lblProductName->font();
    constexpr double titleScale = 2.4;
    large.setPointSizeF(large.pointSizeF() * titleScale);
    large.setWeight(QFont::DemiBold);
    lblProductName->setFont(large);
    rows->addWidget(lblProductName, 0, Qt::AlignHCenter);

    auto* lblVersion =
        Named(new QLabel(u"Version "_s + QApplication::applicationVersion()), u"lblVersion"_s);
    lblVersion->setProperty("soft", true);
    rows->addWidget(lblVersion, 0, Qt::AlignHCenter);

    ProgressBar1 = Named(new QProgressBar, u"ProgressBar1"_s);
    ProgressBar1->setRange(0, progressEnd);
    ProgressBar1->setValue(0);
    ProgressBar1->setTextVisible(false);
    ProgressBar1->setFixedWidth(Em(pictureWidth));
    ProgressBar1->setAccessibleName(u"Start of the program"_s);
    rows->addWidget(ProgressBar1, 0, Qt::AlignHCenter);
    return title;
}

QWidget* frmSplash::MakeWelcome() {
    auto* welcome = Named(new Card(u"Welcome"_s), u"fraWelcome"_s);
    welcome->setFixedWidth(Em(welcomeWidth));
    welcome->Rows()->addWidget(MakePicture(1, u"Yes me, I'm the LOGO"_s), 0, Qt::AlignHCenter);
    for (const char* text : welcomeTexts) {
        auto* line = new QLabel(QString::fromLatin1(text));
        line->setWordWrap(true);
        welcome->Rows()->addWidget(line);
    }
    welcome->hide();
    return welcome;
}

void frmSplash::Timer1_Timer() {
    ProgressBar1->setValue(ProgressBar1->value() + progressPerTick);
    if (ProgressBar1->value() >= progressEnd)
        Timer1->stop();
}

bool frmSplash::IsSetUp() {
    return office.disk.FileExists(u"\\MyBusinessData.txt"_s) &&
           office.disk.FileExists(u"\\Settings.txt"_s) &&
           office.disk.FileExists(u"/DeliverySettings.txt"_s);
}

void frmSplash::cmdContinue_Click() {
    if (!IsSetUp()) {
        fraWelcome->show();
        return;
    }
    screens.GoFrom(ScreenName::frmSplash, ScreenName::frmStartup);
    screens.Destroy(ScreenName::frmSplash);
}

void frmSplash::Image1_Click(int index) {
    if (index == 1)
        fraWelcome->hide();
    screens.GoFrom(ScreenName::frmSplash, ScreenName::frmSetup);
    screens.Destroy(ScreenName::frmSplash);
}
