#include "slips/AddressLabels.h"

#include "platform/ElidedLabel.h"
#include "platform/Screen.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int wordGap = 6;
constexpr int lineGap = 3;

/// The line that each part of an address stands on.
constexpr std::array<size_t, addressParts> usaLines = {0, 1, 1, 2, 2, 2};
constexpr std::array<size_t, addressParts> internationalLines = {0, 1, 2, 3, 4, 5};

} // namespace

AddressLabels::AddressLabels(int firstIndex) {
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins({});
    rows->setSpacing(lineGap);
    for (int i = 0; i < addressParts; ++i) {
        lines[size_t(i)] = new QHBoxLayout;
        lines[size_t(i)]->setSpacing(wordGap);
        rows->addLayout(lines[size_t(i)]);
        parts[size_t(i)] = Named(new ElidedLabel, Indexed(u"lblCustomer"_s, firstIndex + i));
    }
    parts.front()->setProperty("strong", true);
    Arrange(true);
}

void AddressLabels::Show(const DeliveryAddress& address) {
    for (size_t i = 0; i < parts.size(); ++i) {
        parts[i]->setText(address[i]);
        // A part that is empty leaves no gap.
        parts[i]->setVisible(!address[i].isEmpty());
    }
}

void AddressLabels::Arrange(bool isUsaStyle) {
    for (QHBoxLayout* line : lines) {
        while (const QLayoutItem* item = line->takeAt(0))
            delete item;
    }
    const auto& places = isUsaStyle ? usaLines : internationalLines;
    for (size_t i = 0; i < parts.size(); ++i)
        lines[places[i]]->addWidget(parts[i]);
    for (QHBoxLayout* line : lines)
        line->addStretch(1);
}
