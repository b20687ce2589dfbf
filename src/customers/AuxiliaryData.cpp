#include "customers/AuxiliaryData.h"

#include "platform/RuntimeFailure.h"
#include "store/Conversions.h"
#include "store/TextLines.h"

using namespace Qt::StringLiterals;

namespace {

const QString headingsFile = u"/AuxHeadings.txt"_s;
const QString auxFolder = u"/AuxFiles"_s;

QString AccountFolder(const QString& accountNumber) {
    return auxFolder + u'/' + TrimBlanks(accountNumber);
}

QString BoxFolder(const QString& accountFolder, int box) {
    return accountFolder + u"/AuxFile"_s + QString::number(box);
}

QString BoxFile(const QString& accountFolder, int box) {
    return BoxFolder(accountFolder, box) + u"/Data.txt"_s;
}

/// Account numbers that are typed have no such characters, but a file may bring anything.
bool StaysInItsFolder(const QString& accountNumber) {
    const QString name = TrimBlanks(accountNumber);
    return name != "."_L1 && name != ".."_L1 && !name.contains(u'/') && !name.contains(u'\\') &&
           !name.contains(QChar::Null);
}

} // namespace

AuxiliaryData::AuxiliaryData(BasicDiskRoutines& diskRoutines) : disk(diskRoutines) {}

void AuxiliaryData::Load() {
    for (int box = 0; box < boxes; ++box)
        txtHeading.at(size_t(box)) = u"Heading #"_s + QString::number(box + 1);
    txtAux.fill({});
    ckSaveAux = false;
    LoadAuxHeadings();
}

void AuxiliaryData::LoadAuxHeadings() {
    if (!disk.FileExists(headingsFile))
        return;
    disk.OpenForInput(headingsFile);
    TextReader reader(disk);
    for (QString& heading : txtHeading)
        heading = reader.WholeLine();
    disk.CloseAllFiles();
}

void AuxiliaryData::SaveAuxHeadings() {
    RewritePlainLines(disk, headingsFile, QStringList(txtHeading.begin(), txtHeading.end()));
}

void AuxiliaryData::LoadAuxData(const QString& accountNumber) {
    if (ckSaveAux)
        return;
    txtAux.fill({});
    // Nothing can have been saved under such a number.
    if (!StaysInItsFolder(accountNumber))
        return;
    const QString folder = AccountFolder(accountNumber);
    for (int box = 0; box < boxes; ++box) {
        if (!disk.FileExists(BoxFile(folder, box)))
            continue;
        disk.OpenForInput(BoxFile(folder, box));
        TextReader reader(disk);
        QString& text = txtAux.at(size_t(box));
        while (!reader.AtEnd())
            text += reader.Text() + u'\n';
        text.replace("\r\n"_L1, "\n"_L1);
        disk.CloseAllFiles();
    }
}

void AuxiliaryData::MakeFolders(const QString& accountFolder) {
    disk.MakeFolder(auxFolder);
    disk.MakeFolder(accountFolder);
    for (int box = 0; box < boxes; ++box)
        disk.MakeFolder(BoxFolder(accountFolder, box));
}

void AuxiliaryData::SaveAuxData(const QString& accountNumber) {
    if (!StaysInItsFolder(accountNumber))
        throw RuntimeFailure(
            FailureKind::BadFileName,
            u"Saving the data of the account \"%1\" failed: the account number can't name a "
            u"folder."_s.arg(accountNumber));
    const QString folder = AccountFolder(accountNumber);
    for (int box = 0; box < boxes; ++box)
        disk.KillFile(BoxFile(folder, box));
    MakeFolders(folder);
    for (int box = 0; box < boxes; ++box) {
        disk.OpenForOutput(BoxFile(folder, box));
        TextWriter(disk).Plain(QString(txtAux.at(size_t(box))).replace(u'\n', "\r\n"_L1));
        disk.CloseAllFiles();
    }
}
