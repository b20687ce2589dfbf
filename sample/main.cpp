#include "SampleBusiness.h"
#include "platform/RuntimeFailure.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

int Refuse(const QString& sentence) {
    std::fprintf(stderr, "%s\n", sentence.toLocal8Bit().constData());
    return 1;
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    QCommandLineParser commandLine;
    commandLine.setApplicationDescription(
        u"Lays out a sample business in an empty or new data folder."_s);
    commandLine.addHelpOption();
    commandLine.addPositionalArgument(u"FOLDER"_s, u"The data folder."_s);
    const QCommandLineOption dateOption(
        u"date"_s, u"The day on which the sample business stands; today when left out."_s,
        u"yyyy-mm-dd"_s, QDate::currentDate().toString(Qt::ISODate));
    commandLine.addOption(dateOption);
    commandLine.process(application);

    const QDate today = QDate::fromString(commandLine.value(dateOption), Qt::ISODate);
    if (commandLine.positionalArguments().size() != 1)
        return Refuse(u"Name one folder for the sample business."_s);
    if (!today.isValid())
        return Refuse(commandLine.value(dateOption) + u" is no date of the form yyyy-mm-dd."_s);
    try {
        LayOutSampleBusiness(commandLine.positionalArguments().first(), today);
    } catch (const RuntimeFailure& failure) {
        return Refuse(failure.Sentence());
    }
    return 0;
}
