#include "support/ScreenTest.h"

#include "platform/Grid.h"

#include <QCloseEvent>
#include <QLabel>
#include <QtTest/qtestspontaneevent.h>

ScreenTest::ScreenTest() : ScreenTest(NoSerialPort::Only()) {}

ScreenTest::ScreenTest(SerialPort& serialPort) : OfficeTest(serialPort), screens(office) {
    Failures().clear();
    QObject::connect(&screens, &Screens::ExitRequested, [this] { ++exitRequests; });
}

std::vector<RuntimeFailure>& ScreenTest::Failures() {
    static std::vector<RuntimeFailure> failures;
    return failures;
}

void ScreenTest::TellNames(ScreenName screen, const QString& name) const {
    QStringList names;
    for (const QObject* control : screens.Find(screen)->findChildren<QObject*>()) {
        if (!control->objectName().isEmpty())
            names += control->objectName();
    }
    ADD_FAILURE() << "No control " << name.toStdString() << " among "
                  << names.join(QLatin1String(", ")).toStdString();
}

void ScreenTest::Click(ScreenName screen, const QString& button) {
    QTest::mouseClick(Find<QAbstractButton>(screen, button), Qt::LeftButton);
}

void ScreenTest::ClickCell(Grid* grid, int row, int column) {
    const QRect cell = grid->visualRect(grid->model()->index(row - 1, column));
    QTest::mouseClick(grid->viewport(), Qt::LeftButton, Qt::NoModifier, cell.center());
}

void ScreenTest::Press(QWidget* control, Qt::Key key) {
    QTest::keyClick(control, key);
}

void ScreenTest::Type(QWidget* control, const QString& text) {
    constexpr char16_t afterAscii = 128;
    // The toolkit has no keys of its own for the characters behind the first 128.
    for (const QChar character : text) {
        if (character < afterAscii)
            QTest::keyClick(control, character.toLatin1());
        else
            QTest::sendKeyEvent(QTest::Click, control, Qt::Key_unknown, character, Qt::NoModifier);
    }
}

void ScreenTest::CloseByUser(ScreenName screen) const {
    QCloseEvent event;
    QSpontaneKeyEvent::setSpontaneous(&event);
    // Sending an event would take the mark of coming from outside off it.
    qApp->notify(screens.Find(screen), &event);
}

QStringList ScreenTest::TextsIn(const QWidget* part) {
    QStringList texts;
    for (const QLabel* label : part->findChildren<QLabel*>())
        texts += label->text();
    return texts;
}

void ScreenTest::WriteMasterFiles() const {
    for (const char* name : {"NXInventoriedItems.txt", "Vehicles.txt", "CustomerData.txt"})
        folder.Write(QString::fromLatin1(name), {});
}

bool ScreenTest::IsShown(ScreenName screen) const {
    const Screen* found = screens.Find(screen);
    return found && found->isVisible();
}
