#include "platform/AmountBox.h"

#include "platform/EntryField.h"
#include "platform/RegionalFormats.h"

void EmptyZeroAtKeyDown(EntryField* box) {
    QObject::connect(box, &EntryField::KeyDown, box, [box] {
        if (box->text() == RegionalFormats::Current().Currency(0, false))
            box->clear();
    });
}
