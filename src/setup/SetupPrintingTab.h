#pragma once

#include "setup/PrintLook.h"
#include "setup/SettingsBinder.h"

#include <QWidget>

class Card;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;

/// The setup screen's tab of what all printed documents look like: font, colours, copies, paper.
class SetupPrintingTab : public QWidget {
    Q_OBJECT

public:
    SetupPrintingTab(LiveSettings& liveSettings, PrintLook& look);

    /// With colour printing on, the sample words take the text colour; they keep it when colour
    /// printing is turned off again.
    void RecolorSamples();
    void ShowAll() const { binder.ShowAll(); }

private:
    Card* MakeLookCard();
    Card* MakePaperCard();
    QWidget* MakeColorChoice();
    QWidget* MakeChange(int index, QWidget* shown, const QString& what);
    QLineEdit* MakeColorBox(const QString& name, const qint32& color);
    QRadioButton* MakePaper(const QString& name, const QString& caption, const QString& tip,
                            bool& value, bool& other);

    void cmdChange_Click(int index);
    bool Change(int index);

    LiveSettings& settings;
    PrintLook& printLook;
    SettingsBinder binder;
    QLabel* sampleWords[2] = {};
};
