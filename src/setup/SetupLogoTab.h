#pragma once

#include "setup/CompanyLogo.h"

#include <QWidget>

#include <array>
#include <functional>

class Card;
class QLabel;
class QPushButton;
class UpDown;

/// The setup screen's tab of the company logo: the picture as it is in its file, and as it will
/// print.
class SetupLogoTab : public QWidget {
    Q_OBJECT

public:
    SetupLogoTab(LiveSettings& liveSettings, CompanyLogo& companyLogo, PrinterSurface& surface,
                 Operator& person);

    /// Places in the array cmdLogo.
    enum Button {
        Find = 0,
        Store = 1,
        Clear = 2,
        WidthFromHeight = 3,
        HeightFromWidth = 4,
        PrintSample = 5,
        Restore = 6,
        ButtonCount
    };

private:
    Card* MakeFileCard();
    Card* MakeAdjustedCard();
    Card* MakeGuideCard();
    QPushButton* MakeButton(Button index, const QString& caption, const QString& tip = {});
    using Step = std::function<void()>;
    UpDown* MakeSize(const QString& name, const QString& what, const Step& smaller,
                     const Step& larger);
    void ShowLogo();
    void ShowAdjusted();

    void cmdLogo_Click(Button index);
    void cmdLogo_PrintSample();

    LiveSettings& settings;
    CompanyLogo& logo;
    PrinterSurface& printer;
    Operator& user;
    QLabel* Image2 = nullptr;
    QLabel* Image3 = nullptr;
    QLabel* printedSize = nullptr;
    std::array<QPushButton*, ButtonCount> cmdLogo{};
};
