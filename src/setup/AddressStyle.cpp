#include "setup/AddressStyle.h"

#include "store/Conversions.h"

using namespace Qt::StringLiterals;

namespace {

const QString usaStyle = u"USA Style Address"_s;
const QString internationalStyle = u"International Style Address"_s;

} // namespace

bool IsUsaStyle(const LiveSettings& settings) {
    return settings.cmdAddress == usaStyle;
}

void DeriveAddressStyle(LiveSettings& settings) {
    const bool isDecided = !settings.BusinessData[0].isEmpty() ||
                           settings.BusinessData[5].isEmpty() ||
                           IsNumeric(settings.BusinessData[5]);
    if (isDecided)
        ApplyAddressStyle(settings);
}

void ApplyAddressStyle(LiveSettings& settings) {
    const QString& companyName = settings.BusinessData[0];
    const QString& postalCode = settings.BusinessData[5];
    // Each step sets the opposite of what is wanted, since the flip at the end turns it round.
    if (companyName.isEmpty() && postalCode.isEmpty())
        settings.cmdAddress = internationalStyle;
    if (IsNumeric(postalCode))
        settings.cmdAddress = internationalStyle;
    if (!companyName.isEmpty())
        settings.cmdAddress = postalCode.isEmpty() ? usaStyle : internationalStyle;
    FlipAddressStyle(settings);
}

void FlipAddressStyle(LiveSettings& settings) {
    const bool becomesUsa = !IsUsaStyle(settings);
    settings.cmdAddress = becomesUsa ? usaStyle : internationalStyle;
    settings.txtBusiness[5] = becomesUsa ? settings.BusinessData[5] : QString();
}
