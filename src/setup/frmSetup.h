#pragma once

#include "platform/Screen.h"

class Office;
class QPushButton;
class QTabWidget;
class Screens;
class SetupBusinessTab;
class SetupLogoTab;
class SetupOptionsTab;

/// The one screen where the operator enters the business data and sets every option. It has no
/// Cancel: the way back is to save.
class frmSetup : public Screen {
    Q_OBJECT

public:
    frmSetup(Office& theOffice, Screens& allScreens);

    void Activate() override;
    /// The menu opens the screen on its first tab; any other way leaves the tab as it was.
    void SelectFirstTab();

private:
    QPushButton* MakeStepper(int index, const QString& caption, const QString& tip,
                             QTabWidget* tabs);
    void cmdQuit_Click();

    Office& office;
    Screens& screens;
    SetupBusinessTab* business = nullptr;
    SetupOptionsTab* options = nullptr;
    QTabWidget* tabInfo = nullptr;
    QPushButton* cmdQuit = nullptr;
};
