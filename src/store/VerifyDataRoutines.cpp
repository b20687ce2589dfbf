#include "store/VerifyDataRoutines.h"

#include "platform/RuntimeFailure.h"
#include "store/Conversions.h"

using namespace Qt::StringLiterals;

namespace {

bool IsDigitOrPoint(ushort key) {
    return (key >= u'0' && key <= u'9') || key == u'.';
}

ushort RefuseCharacter(ushort key, Operator& user) {
    user.Beep();
    user.MsgBox(u"This character, (%1) is invalid for this field"_s.arg(QChar(key)), Buttons::Ok,
                u"Invalid Key entry"_s);
    return 0;
}

} // namespace

ushort FilterNumericKey(ushort key, const QString& fieldText, Operator& user) {
    if (key == u'.' && fieldText.contains(u'.'))
        return 0;
    const bool isLeadingZero = key == u'0' && fieldText.isEmpty();
    if (isLeadingZero || (key != backspaceKey && !IsDigitOrPoint(key))) {
        user.Beep();
        return 0;
    }
    return key;
}

ushort FilterAmountKey(ushort key, const QString& fieldText, Operator& user) {
    if (key == u'.' && fieldText.contains(u'.'))
        user.Beep();
    return FilterNumericKey(key, fieldText, user);
}

ushort FilterDigitKey(ushort key) {
    return key == backspaceKey || IsDigitOrPoint(key) ? key : ushort(0);
}

ushort FilterNoSpecial(ushort key, const QString& fieldText, Operator& user) {
    if (key == backspaceKey || IsNumeric(fieldText))
        return key;
    return u",&.\\*/?"_s.contains(QChar(key)) ? RefuseCharacter(key, user) : key;
}

ushort FilterAddressKey(ushort key, Operator& user) {
    return key == u'"' ? RefuseCharacter(key, user) : key;
}

bool FormatCurrencyField(QString& fieldText, Operator& user) {
    QString amount;
    // A number beyond what an amount can be has no currency text either.
    if (IsNumeric(fieldText) && PassOver([&] { amount = CurrencyText(fieldText); })) {
        fieldText = amount;
        return true;
    }
    user.Beep();
    fieldText.clear();
    return false;
}

void DateIsInvalid(Operator& user) {
    user.MsgBox(u"Your Calendar Selection is Invalid"_s);
}
