#include "setup/GraduatedTax.h"

#include "store/Conversions.h"

using namespace Qt::StringLiterals;

std::optional<int> CheckGraduatedScheme(LiveSettings& settings, Operator& user) {
    for (size_t i = 0; i < settings.txtGradulated.size(); ++i) {
        QString& amount = settings.txtGradulated[i];
        if (!IsNumeric(amount)) {
            user.Beep();
            amount = ZeroCurrencyText();
            return int(i);
        }
        amount = CurrencyText(amount, u"the graduated tax scheme"_s);
    }
    if (settings.txtGradulated[0] == ZeroCurrencyText())
        settings.ckApplyGraduated = 0;
    return std::nullopt;
}

void ClearGraduatedScheme(LiveSettings& settings) {
    settings.txtGradulated.fill(ZeroCurrencyText());
}
