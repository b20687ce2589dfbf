#include "setup/SetupLogoTab.h"

#include "platform/Form.h"
#include "platform/Screen.h"
#include "platform/Theme.h"
#include "platform/UpDown.h"
#include "schedule/PrintErrors.h"
#include "store/Conversions.h"

#include <QImage>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr double twipsInInch = 1440;
constexpr double viewWidth = 14.5;
constexpr double viewHeight = 9.5;
constexpr double guideWidth = 17;

/// What the tab asks for, step by step.
const QStringList guide = {
    u"BEFORE SELECTING YOUR LOGO: COPY THE FILE INTO YOUR BRACKWELL FOLDER"_s,
    u"Click Find (above), Browse to your BRACKWELL FOLDER"_s,
    u"Select your LOGO File from the BRACKWELL FOLDER"_s,
    u"Click Store"_s,
    u"Click Height and Width (< >) to adjust LOGO size"_s,
    u"Size is limited based to the space on the form."_s,
    u"Print a sample to Review"_s,
    u"Do not select your LOGO from a Network Device or a removable device"_s,
    u"Your LOGO must be STORED while diplaying the Logo Screen."_s,
};

/// As large on the screen as on paper.
QSize DotsOf(double widthInTwips, double heightInTwips, const QWidget& screen) {
    return QSize(int(std::lround(widthInTwips * screen.logicalDpiX() / twipsInInch)),
                 int(std::lround(heightInTwips * screen.logicalDpiY() / twipsInInch)))
        .expandedTo(QSize(1, 1));
}

QPixmap Stretched(const QImage& image, QSize size, double pixelRatio) {
    QPixmap pixmap = QPixmap::fromImage(
        image.scaled(size * pixelRatio, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    pixmap.setDevicePixelRatio(pixelRatio);
    return pixmap;
}

/// A length in inches to the hundredth.
QString Inches(float twips) {
    constexpr double hundredths = 100;
    return NumberText(std::round(double(twips) / twipsInInch * hundredths) / hundredths);
}

QScrollArea* MakeView(QLabel* picture) {
    auto* view = new QScrollArea;
    view->setWidget(picture);
    view->setWidgetResizable(true);
    view->setFrameShape(QFrame::NoFrame);
    view->setFixedSize(Em(viewWidth), Em(viewHeight));
    picture->setAlignment(Qt::AlignCenter);
    return view;
}

} // namespace

SetupLogoTab::SetupLogoTab(LiveSettings& liveSettings, CompanyLogo& companyLogo,
                           PrinterSurface& surface, Operator& person)
    : settings(liveSettings), logo(companyLogo), printer(surface), user(person) {
    auto* columns = new QHBoxLayout(this);
    columns->setContentsMargins(0, cardGap, 0, 0);
    columns->setSpacing(cardGap);
    columns->addWidget(MakeFileCard(), 0, Qt::AlignTop);
    columns->addWidget(MakeAdjustedCard(), 0, Qt::AlignTop);
    columns->addWidget(MakeGuideCard(), 0, Qt::AlignTop);
    columns->addStretch(1);
    cmdLogo[Store]->setEnabled(false);
    ShowLogo();
}

QPushButton* SetupLogoTab::MakeButton(Button index, const QString& caption, const QString& tip) {
    auto* button = Named(new QPushButton(caption), Indexed(u"cmdLogo"_s, index));
    button->setToolTip(tip);
    button->setAutoDefault(true);
    connect(button, &QPushButton::clicked, this, [this, index] { cmdLogo_Click(index); });
    cmdLogo[index] = button;
    return button;
}

Card* SetupLogoTab::MakeFileCard() {
    Image2 = Named(new QLabel, u"Image2"_s);
    Image2->setToolTip(u"Displays your Selected Logo"_s);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(MakeButton(Find, u"Find"_s,
                                  u"Opens up your disk files for locating a Logo File (Image)"_s));
    buttons->addWidget(
        MakeButton(Store, u"&Store"_s, u"Saves your Logo (no need to Click our logo)"_s));
    buttons->addWidget(MakeButton(Clear, u"&Clear"_s, u"Clears your current Logo"_s));
    auto* card = new Card(u"File on Disk"_s);
    card->Rows()->addWidget(MakeView(Image2));
    card->Rows()->addLayout(buttons);
    QLabel* note = SoftLabel(u"The selected file may overflow in the view Window, thats OK"_s);
    note->setWordWrap(true);
    card->Rows()->addWidget(note);
    return card;
}

Card* SetupLogoTab::MakeAdjustedCard() {
    Image3 = Named(new QLabel, u"Image3"_s);
    printedSize = SoftLabel({});
    printedSize->setAlignment(Qt::AlignCenter);
    auto* sizes = new Form;
    sizes->AddRow(u"Width"_s, MakeSize(
                                  u"UpDown3"_s, u"width"_s, [this] { logo.WidthSmaller(); },
                                  [this] { logo.WidthLarger(); }));
    sizes->AddRow(u"Height"_s, MakeSize(
                                   u"UpDown2"_s, u"height"_s, [this] { logo.HeightSmaller(); },
                                   [this] { logo.HeightLarger(); }));
    auto* steps = new QHBoxLayout;
    steps->addLayout(sizes);
    steps->addStretch(1);
    steps->addWidget(MakeButton(Restore, u"Restore"_s, u"Sets the Adjusted Image to Defaults"_s), 0,
                     Qt::AlignTop);
    auto* card = new Card(u"Adjusted Logo"_s);
    card->Rows()->addWidget(MakeView(Image3));
    card->Rows()->addWidget(printedSize);
    card->Rows()->addLayout(steps);
    card->Rows()->addWidget(
        MakeButton(WidthFromHeight, u"Make Square (Height)"_s, u"Makes Width = to Height"_s));
    card->Rows()->addWidget(
        MakeButton(HeightFromWidth, u"Make Square (Width)"_s, u"Makes Height = to Width"_s));
    card->Rows()->addWidget(MakeButton(PrintSample, u"Print Sample"_s));
    return card;
}

UpDown* SetupLogoTab::MakeSize(const QString& name, const QString& what, const Step& smaller,
                               const Step& larger) {
    auto* steps = new UpDown(name, u"Smaller "_s + what, u"Larger "_s + what);
    connect(steps, &UpDown::DownClick, this, [this, smaller] {
        smaller();
        ShowAdjusted();
    });
    connect(steps, &UpDown::UpClick, this, [this, larger] {
        larger();
        ShowAdjusted();
    });
    return steps;
}

Card* SetupLogoTab::MakeGuideCard() {
    auto* card = new Card(u"How to set your Logo"_s);
    card->setFixedWidth(Em(guideWidth));
    for (const QString& line : guide) {
        QLabel* label = SoftLabel(line);
        label->setWordWrap(true);
        card->Rows()->addWidget(label);
    }
    return card;
}

void SetupLogoTab::ShowLogo() {
    if (settings.logo.IsEmpty()) {
        Image2->setText(u"No logo. Click Find to pick a picture."_s);
        Image2->setWordWrap(true);
    } else {
        const QImage& image = *settings.logo.Image;
        Image2->setPixmap(Stretched(image, DotsOf(settings.logo.Width, settings.logo.Height, *this),
                                    devicePixelRatioF()));
    }
    ShowAdjusted();
}

void SetupLogoTab::ShowAdjusted() {
    printedSize->setText(
        u"%1 x %2 in"_s.arg(Inches(settings.logoWidth), Inches(settings.logoHeight)));
    if (settings.logo.IsEmpty()) {
        Image3->clear();
        return;
    }
    const QSize size = DotsOf(double(settings.logoWidth), double(settings.logoHeight), *this);
    Image3->setPixmap(Stretched(*settings.logo.Image, size, devicePixelRatioF()));
}

void SetupLogoTab::cmdLogo_Click(Button index) {
    switch (index) {
    case Find:
        if (logo.Find())
            cmdLogo[Store]->setEnabled(true);
        break;
    case Store:
        if (logo.Store())
            cmdLogo[Store]->setEnabled(false);
        break;
    case Clear:
        logo.Clear();
        break;
    case WidthFromHeight:
        logo.MakeWidthEqualHeight();
        break;
    case HeightFromWidth:
        logo.MakeHeightEqualWidth();
        break;
    case PrintSample:
        cmdLogo_PrintSample();
        break;
    case Restore:
        logo.RestoreSize();
        break;
    case ButtonCount:
        break;
    }
    ShowLogo();
}

void SetupLogoTab::cmdLogo_PrintSample() {
    HandlePrintErrors(printer, user, [this] { logo.PrintSample(printer); });
}
