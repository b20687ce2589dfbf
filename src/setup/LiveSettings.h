#pragma once

#include "platform/Picture.h"

#include <QString>

#include <array>

/// Twips.
constexpr float defaultLogoSize = 1440;

/// The options of the business, each under the name of the setup screen's control that shows it.
/// This is their one live copy: a reader asks for a value at the moment of need, and a change takes
/// effect at once, even before it is saved.
///
/// The check values (ck...) are 0 unticked, 1 ticked.
struct LiveSettings {
    /// MyBusinessData.txt as it was last read or written: name, two address lines, city, state,
    /// postal code, telephone, fax or web, tax number.
    std::array<QString, 9> BusinessData;
    /// The same nine as the setup screen shows them; a save takes them over.
    std::array<QString, 9> txtBusiness;

    // Settings.txt
    qint16 ReservedSetting = 8;
    qint16 WorkWeek = 5;
    bool AlarmOn = true;
    bool PromptsOn = true;
    bool CallerIdOn = false;

    // Prompts.txt; what the check boxes show, which can differ from AlarmOn and PromptsOn in use.
    bool ckPrompts = true;
    bool ckAlarms = true;
    /// Follows clicks only; never restored from a file.
    bool ckCallerID = false;

    /// WorkDays.txt: the work week that the setup screen's options show, which can differ from
    /// the WorkWeek in use.
    qint16 shownWorkWeek = 5;

    // DeliverySettings.txt
    quint8 ckColor = 0;
    quint8 ckDelete = 1;
    quint8 ckApplyGraduated = 0;
    quint8 ckOnDay = 1;
    quint8 ckPopulateInvoices = 0;
    quint8 ckDeliveryCharge = 0;
    bool optPlain = true;
    bool optReturn = false;
    /// The primary limit and the surcharge of the graduated tax scheme, currency texts.
    std::array<QString, 2> txtGradulated;
    /// Currency text.
    QString txtDeliveryCharge;

    // TaxSettings.txt; the rates are percentages as entered, "6.25" or "5,0".
    QString cboTaxHeading1;
    QString cboTaxHeading2;
    QString cboRate1;
    QString cboRate2;
    qint16 ckApply1stTax = 0;
    qint16 ckApply2ndTax = 0;

    // PrintColors.txt; colours are 0x00BBGGRR.
    qint32 BorderColor = 0;
    qint32 TextColor = 0;
    QString DocumentFont;
    /// Kept as it was first written; nothing but the sample print looks at it.
    bool PrintInColorFlag = true;
    quint8 PrintCopies = 3;
    /// The box of the copies, free text; a save turns it into PrintCopies.
    QString cboCopies;
    /// What the print dialog offers: the copies at the time PrintColors.txt was read.
    quint8 printDialogCopies = 3;

    // Phone.txt
    bool PhoneDaisyChained = false;
    qint16 ComPort = 1;
    /// What the check box shows; a save turns it into PhoneDaisyChained.
    bool ckPhone = false;
    /// The port that was found at the start, which can differ from the ComPort kept in the file.
    QString txtModemPort;
    /// Whether the label that tells of Caller ID shows.
    bool lblCallid = false;

    /// CompanyLogo.txt: the full path of the picture; empty for no logo.
    QString logoFile;
    /// The picture of that file; none when there is no logo or its file has gone.
    Picture logo;
    /// LogoSettings.txt: the size the logo prints in, twips.
    float logoWidth = defaultLogoSize;
    float logoHeight = defaultLogoSize;

    /// The caption of the button is the setting, and it is held in no file.
    QString cmdAddress = QStringLiteral("USA Style Address");

    /// The colour last chosen for printing, 0x00BBGGRR; held in no file.
    quint32 CurrentPrintColor = 0;
};
