#pragma once

#include "customers/CustomerSearch.h"
#include "platform/Screen.h"

class Grid;
class QMenu;
class QPushButton;

/// The frame fraCustomersFound: the customers that a search has found, or all of them.
class CustomersFoundPanel : public Card {
    Q_OBJECT

public:
    explicit CustomersFoundPanel(CustomerSearch& customerSearch);

    void Show();
    void FocusGrid();
    /// What the Tab key goes through, in its order.
    QList<QWidget*> TabStops() const;

Q_SIGNALS:
    /// mnuSelect: the customer of the current row.
    void SelectClicked();
    void RetryClicked();
    void PrintClicked();

private:
    QWidget* MakeGuide();
    QWidget* MakeButtons();
    void MakePopup();
    void fgCustomersFound_RightClick(QPoint place);

    CustomerSearch& search;
    Grid* fgCustomersFound;
    QMenu* mnupopup = nullptr;
    QPushButton* cmdRetry = nullptr;
    QPushButton* cmdPrintCustomers = nullptr;
};
