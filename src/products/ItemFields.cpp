#include "products/ItemFields.h"

#include "store/Conversions.h"
#include "store/VerifyDataRoutines.h"

using namespace Qt::StringLiterals;

bool TypingReplacesAmount(const QString& text) {
    return text == ZeroCurrencyText();
}

bool TypingReplacesCount(const QString& text) {
    return text == "0"_L1;
}

bool LeaveAmount(QString& text, Operator& user) {
    return text.isEmpty() || FormatCurrencyField(text, user);
}

void LeaveCount(QString& text) {
    if (text.isEmpty())
        text = u"0"_s;
}
