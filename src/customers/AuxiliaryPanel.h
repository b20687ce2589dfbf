#pragma once

#include "customers/AuxiliaryWindow.h"
#include "platform/Screen.h"

#include <map>

class ElidedLabel;
class EntryField;
class MemoBox;
class QCheckBox;
class QPushButton;

/// The frame fraAux with the six auxiliary texts of a customer, and in its place fraBig with one of
/// them.
class AuxiliaryPanel : public QWidget {
    Q_OBJECT

public:
    /// `caption` is that of fraAux, which follows the customer.
    AuxiliaryPanel(AuxiliaryData& auxiliaryData, AuxiliaryWindow& auxiliaryWindow,
                   const QString& caption);

    /// Takes over what is entered, and shows what the rules have made of it.
    void Read();
    void Show();
    /// The text in the larger size, or the box that it came from.
    void FocusText();
    /// What the Tab key goes through, in its order.
    QList<QWidget*> TabStops() const;

Q_SIGNALS:
    void ButtonClicked(AuxButton index);
    void BoxDoubleClicked(int box);
    void HeadingDoubleClicked(int box);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget* MakeBoxesFrame();
    QWidget* MakeBigFrame();
    QLayout* MakeHead();
    QLayout* MakeBoxes();
    QWidget* MakeBox(int box);
    QPushButton* MakeButton(AuxButton index, const QString& caption, const QString& tip);

    AuxiliaryData& data;
    AuxiliaryWindow& window;
    const QString& fraAuxCaption;
    Card* fraAux = nullptr;
    Card* fraBig = nullptr;
    std::array<EntryField*, AuxiliaryData::boxes> txtHeading{};
    std::array<MemoBox*, AuxiliaryData::boxes> txtAux{};
    MemoBox* txtBig = nullptr;
    ElidedLabel* lblAccount = nullptr;
    ElidedLabel* lblEditing = nullptr;
    QCheckBox* ckSaveAux = nullptr;
    std::map<AuxButton, QPushButton*> cmdSaveAux;
};
