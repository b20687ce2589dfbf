#include "products/CategoryList.h"

#include "store/Conversions.h"

void CategoryList::Clear() {
    listed.clear();
    List.setStringList({});
}

void CategoryList::Add(const QStringList& categories) {
    QStringList added;
    for (const QString& category : categories) {
        if (listed.contains(category) || TrimBlanks(category).isEmpty())
            continue;
        listed.insert(category);
        added += category;
    }
    if (!added.isEmpty())
        List.setStringList(List.stringList() + added);
}
