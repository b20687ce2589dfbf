#include "platform/GuardedApplication.h"
#include "platform/Theme.h"
#include "support/ScreenTest.h"

#include <QStandardPaths>

class TakenFailures : public ScreenTest {
public:
    static void Take(const RuntimeFailure& failure) { Failures().push_back(failure); }
    void TestBody() override {}
};

int main(int argumentCount, char** arguments) {
    testing::InitGoogleTest(&argumentCount, arguments);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QStandardPaths::setTestModeEnabled(true);
    GuardedApplication application(argumentCount, arguments);
    application.OnFailure = TakenFailures::Take;
    Theme::Apply(application);
    return RUN_ALL_TESTS();
}
