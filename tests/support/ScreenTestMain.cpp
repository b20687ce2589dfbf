#include "platform/GuardedApplication.h"
#include "platform/Theme.h"
#include "support/ScreenTest.h"

#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>

namespace {

bool hasUnwoundTheToolkit = false;

class TakenFailures : public ScreenTest {
public:
    static void Take(const RuntimeFailure& failure) {
        hasUnwoundTheToolkit = true;
        Failures().push_back(failure);
    }
    void TestBody() override {}
};

} // namespace

/// The leak check asks this at the end of the process. The toolkit's windows are built without
/// exceptions, so what they hold at the moment leaks when a failure passes through their event
/// delivery. The program ends at once then; only a test goes on.
extern "C" int __lsan_is_turned_off();
extern "C" int __lsan_is_turned_off() {
    return hasUnwoundTheToolkit ? 1 : 0;
}

int main(int argumentCount, char** arguments) {
    testing::InitGoogleTest(&argumentCount, arguments);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QStandardPaths::setTestModeEnabled(true);
    // Tests run side by side, and each keeps window layouts of its own.
    const QTemporaryDir layouts;
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, layouts.path());
    GuardedApplication application(argumentCount, arguments);
    application.OnFailure = TakenFailures::Take;
    Theme::Apply(application);
    return RUN_ALL_TESTS();
}
