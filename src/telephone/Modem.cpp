#include "telephone/Modem.h"

#include "store/TextLines.h"

using namespace Qt::StringLiterals;

namespace {

const QString phoneFile = u"/Phone.txt"_s;
constexpr qint16 portWithoutModem = 1;

} // namespace

Modem::Modem(BasicDiskRoutines& diskRoutines, LiveSettings& liveSettings)
    : disk(diskRoutines), settings(liveSettings) {}

void Modem::SetUpModem() {
    ProbeModem();
    settings.PhoneDaisyChained = false;
    if (disk.FileExists(phoneFile)) {
        disk.OpenForInput(phoneFile);
        TextReader reader(disk);
        settings.PhoneDaisyChained = reader.Boolean();
        settings.ComPort = reader.Int16();
        disk.CloseAllFiles();
    }
    settings.ckPhone = settings.PhoneDaisyChained;
    SavePhoneSettings();
}

/// This version speaks to no serial port, so no modem ever answers.
void Modem::ProbeModem() {
    settings.ComPort = portWithoutModem;
    settings.txtModemPort = QString::number(settings.ComPort);
    if (settings.CallerIdOn)
        settings.lblCallid = true;
}

void Modem::SavePhoneSettings() {
    settings.PhoneDaisyChained = settings.ckPhone;
    RewriteFile(
        disk, phoneFile,
        {RecordLine().Boolean(settings.PhoneDaisyChained), RecordLine().Number(settings.ComPort)});
}
