#pragma once

#include <QByteArray>

/// A customer as CustomerData.txt holds it; what a test leaves alone is the business of account
/// 4471.
struct SampleCustomer {
    QByteArray account = "4471";
    QByteArray businessName = "Corner Grocery";
    QByteArray address1 = "12 Mill Road";
    QByteArray address2 = "Unit 3";
    QByteArray city = "Springfield";
    QByteArray cityListEntry = "Springfield";
    QByteArray state = "IL";
    QByteArray zip = "62704";
    QByteArray postalOrAddress4 = "62704";
    QByteArray phone = "217-555-0199";
    QByteArray cell = "217-555-0142";
    QByteArray email = "orders@grocery.example";
    QByteArray title = "";
    QByteArray firstName = "";
    QByteArray lastName = "";
    QByteArray type = "Business";
    /// Two bytes each.
    QByteArray state16 = QByteArray("\x01\0", 2);
    QByteArray reserved = QByteArray("\0\0", 2);

    QByteArray Bytes() const {
        return account.leftJustified(20, ' ') + businessName.leftJustified(45, ' ') +
               address1.leftJustified(35, ' ') + address2.leftJustified(25, ' ') +
               city.leftJustified(25, ' ') + cityListEntry.leftJustified(20, ' ') +
               state.leftJustified(2, ' ') + zip.leftJustified(10, ' ') +
               postalOrAddress4.leftJustified(25, ' ') + phone.leftJustified(13, ' ') +
               cell.leftJustified(13, ' ') + email.leftJustified(30, ' ') +
               title.leftJustified(10, ' ') + firstName.leftJustified(15, ' ') + " " +
               lastName.leftJustified(25, ' ') + type.leftJustified(10, ' ') + state16 + reserved;
    }
};

/// A person: last name, first name, account number.
inline SampleCustomer Person(const QByteArray& last, const QByteArray& first,
                             const QByteArray& account, const QByteArray& title = "") {
    return {.account = account,
            .businessName = "",
            .title = title,
            .firstName = first,
            .lastName = last,
            .type = "Individual"};
}

/// Records of one size that differ from each other: the files' other owner has put something there.
inline QByteArray Siblings(int count, int size) {
    QByteArray bytes;
    for (int number = 1; number <= count; ++number)
        bytes += QByteArray(size, char('A' + number - 1));
    return bytes;
}
