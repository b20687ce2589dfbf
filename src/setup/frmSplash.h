#pragma once

#include "platform/Screen.h"

class Office;
class QProgressBar;
class QPushButton;
class QTimer;
class QToolButton;
class Screens;

/// The title screen, which stands in front of the start-up sequence and then decides between the
/// main menu and, on a system that is not set up, the welcome panel.
class frmSplash : public Screen {
    Q_OBJECT

public:
    frmSplash(Office& theOffice, Screens& allScreens);

private:
    QWidget* MakeTitle();
    QWidget* MakeWelcome();
    QToolButton* MakePicture(int index, const QString& tip);
    void Timer1_Timer();
    void cmdContinue_Click();
    void Image1_Click(int index);
    bool IsSetUp();

    Office& office;
    Screens& screens;
    QProgressBar* ProgressBar1 = nullptr;
    QPushButton* cmdContinue = nullptr;
    QTimer* Timer1 = nullptr;
    QWidget* fraWelcome = nullptr;
};
