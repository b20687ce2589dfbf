#pragma once

#include "slips/DeliverySetupPanel.h"

class EntryBox;
class Grid;
class QMenu;

/// The second stage of a delivery slip: the panels that post lines to it, the customer's data, and
/// the lines posted so far with their total.
class DeliveryItemsPanel : public QWidget {
    Q_OBJECT

public:
    /// `panelMenus` are those that the popup of the lines offers as well.
    DeliveryItemsPanel(DeliveryItems& deliveryItems, SalesItemLists& itemLists, Operator& person,
                       const RuleRunner& ruleRunner, const QList<QAction*>& panelMenus);

    /// Places in the array cmdPost.
    enum Button { PostNonPriced = 0, PostItem = 1, LeaveNonPriced = 2 };

    void ReadFields(DeliveryForm& form) const;
    void ShowFields(const DeliveryForm& form);
    void ArrangeAddress(bool isUsaStyle);
    /// The control, when it is one of this panel.
    QWidget* Control(DeliveryFocus focus) const;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget* MakeCustomer();
    QWidget* MakeItems();
    QWidget* MakeNonPriced();
    void MakeDescriptions();
    QWidget* MakeLines();
    void MakePopup(const QList<QAction*>& panelMenus);
    EntryField* MakeUnits(const QString& name, const std::function<void()>& post);
    QPushButton* MakeButton(Button index, const QString& caption,
                            const std::function<void()>& rule);

    void cboNonPricedDescription_Click();
    void fgDelivery_ContextMenu(QPoint place);

    DeliveryItems& items;
    SalesItemLists& lists;
    Operator& user;
    RuleRunner run;

    QWidget* fraCustomer = nullptr;
    QLabel* lblAcct = nullptr;
    AddressLabels* account = nullptr;
    QWidget* fraItems = nullptr;
    ChoiceList* lstItems = nullptr;
    QLabel* lblUnits = nullptr;
    EntryField* txtUnits = nullptr;
    QWidget* fraNonPriced = nullptr;
    EntryBox* cboNonPricedDescription = nullptr;
    EntryField* txtNonPriced = nullptr;
    std::map<Button, QPushButton*> cmdPost;
    Grid* fgDelivery = nullptr;
    QLabel* txtTotal = nullptr;
    QMenu* mnupopup = nullptr;
};
