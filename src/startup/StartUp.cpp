#include "startup/StartUp.h"

#include "platform/FolderLock.h"
#include "platform/ProgramTitle.h"
#include "startup/DataFolderLayout.h"
#include "startup/Office.h"
#include "startup/Screens.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace {

/// Lets the title screen appear while the sequence runs on; clicks wait until it is done.
void Repaint(Screens& screens) {
    screens.Find(ScreenName::frmSplash)->repaint();
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

} // namespace

bool CheckSingleInstance(const FolderLock& lock, Operator& user) {
    if (!lock.IsHeld())
        user.MsgBox(ProgramTitle() + u" is already Running!\nLook for it on the Task Bar"_s);
    return lock.IsHeld();
}

void Main(Office& office, Screens& screens) {
    office.setup.LoadAll();
    screens.Show(ScreenName::frmSplash);
    Repaint(screens);
    // Its settings are loaded; its many controls need not keep the title waiting.
    screens.Create(ScreenName::frmSetup);
    CreateFolders(office.disk, office.machine.clock);
    office.settingsStore.LoadSettings();
    screens.Create(ScreenName::frmPrintSchedules);
    office.slips.LoadSlips(true);
    screens.Create(ScreenName::frmCustomer);
    Repaint(screens);
    screens.Create(ScreenName::frmStartup);
    screens.Create(ScreenName::frmVehicle);
    office.items.RefreshAll();
    office.deliveryTimes.BuildTimeLists();
}
