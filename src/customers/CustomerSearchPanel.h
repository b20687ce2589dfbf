#pragma once

#include "customers/CustomerSearch.h"
#include "platform/Screen.h"

#include <map>

class EntryField;
class QPushButton;
class QRadioButton;

/// The frame fraSearch: which field to search, and for what.
class CustomerSearchPanel : public Card {
    Q_OBJECT

public:
    explicit CustomerSearchPanel(CustomerSearch& customerSearch);

    /// Takes over what is entered, and shows what the rules have made of it.
    void Read();
    void Show();
    void FocusText();
    /// What the Tab key goes through, in its order.
    QList<QWidget*> TabStops() const;

Q_SIGNALS:
    void OptionClicked(SearchField field);
    void StartClicked();
    void ClearClicked();
    void HideClicked();

private:
    QWidget* MakeOptions();
    QWidget* MakeEntry();
    QPushButton* MakeButton(const QString& name, const QString& caption);

    CustomerSearch& search;
    EntryField* txtSearchfor = nullptr;
    std::map<SearchField, QRadioButton*> optSearch;
    QList<QWidget*> buttons;
};
