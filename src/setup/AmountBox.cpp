#include "setup/AmountBox.h"

#include "platform/FieldWatch.h"
#include "store/Conversions.h"

#include <QLineEdit>

FieldWatch* EmptyZeroAtKeyDown(QLineEdit* box) {
    auto* watch = new FieldWatch(box);
    QObject::connect(watch, &FieldWatch::KeyDown, box, [box] {
        if (box->text() == ZeroCurrencyText())
            box->clear();
    });
    return watch;
}
