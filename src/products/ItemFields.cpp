#include "products/ItemFields.h"

#include "store/VerifyDataRoutines.h"

using namespace Qt::StringLiterals;

bool LeaveAmount(QString& text, Operator& user) {
    return text.isEmpty() || FormatCurrencyField(text, user);
}

bool TypingReplacesCount(const QString& text) {
    return text == "0"_L1;
}

void LeaveCount(QString& text) {
    if (text.isEmpty())
        text = u"0"_s;
}
