#include "store/VerifyDataRoutines.h"

namespace {

bool IsDigitOrPoint(ushort key) {
    return (key >= u'0' && key <= u'9') || key == u'.';
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

ushort FilterDigitKey(ushort key) {
    return key == backspaceKey || IsDigitOrPoint(key) ? key : ushort(0);
}
