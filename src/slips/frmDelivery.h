#pragma once

#include "platform/Screen.h"
#include "slips/DeliverySetupPanel.h"

#include <QPointer>

class ChoiceList;
class DeliveryItemsPanel;
class Office;
class QPushButton;
class Screens;

/// Where a delivery slip is written: first its set-up, then its items, with the templates beside
/// both.
class frmDelivery : public Screen {
    Q_OBJECT

public:
    frmDelivery(Office& theOffice, Screens& allScreens);
    ~frmDelivery() override;

    /// Starts a new slip.
    void Activate() override;

private:
    QList<QAction*> MakeMenus();
    QAction* AddMenu(const QString& name, const QString& caption,
                     const std::function<void()>& rule);
    void MakeFoot();
    QWidget* MakeTemplates();
    QPushButton* MakeTemplateButton(DeliveryTemplates::Button index, const QString& caption,
                                    const std::function<void()>& rule);
    QWidget* MakeFootGroup(std::initializer_list<QPushButton*> buttons);
    QPushButton* MakeInvoiceButton(DeliverySetupPanel::Button index, const QString& caption,
                                   const std::function<void()>& action);

    void RunFromMenu(const std::function<void()>& rule);
    QWidget* FieldInHand() const;
    void Run(const std::function<void()>& rule);
    void Show();
    void ShowFoot();
    void ShowTemplates();
    void ShowWhere();
    void MoveFocus();

    void flstDeliveryTemplates_Click(int place);
    void cmdStore_Click();
    void cmdExit_Click();

    Office& office;
    Screens& screens;
    DeliveryForm& form;
    DeliveryCreation& creation;
    /// While the screen shows what a rule has done, nothing that happens to a control is the
    /// operator's doing.
    bool isShowing = false;

    /// What had the focus before the menu bar took it: Alt leads into the bar by itself.
    QPointer<QWidget> beforeMenuBar;

    DeliverySetupPanel* setup = nullptr;
    DeliveryItemsPanel* items = nullptr;
    QWidget* fraTemplates = nullptr;
    ChoiceList* flstDeliveryTemplates = nullptr;
    std::map<DeliverySetupPanel::Button, QPushButton*> cmdInvoice;
    std::map<DeliveryTemplates::Button, QPushButton*> cmdTemplate;
    QPushButton* cmdExit = nullptr;
    QWidget* setupFoot = nullptr;
    QWidget* itemsFoot = nullptr;
};
