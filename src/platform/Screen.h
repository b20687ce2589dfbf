#pragma once

#include <QFrame>
#include <QMainWindow>

class QAbstractButton;
class QHBoxLayout;
class QLabel;
class QVBoxLayout;

/// The frame that all screens share: a head band with the caption and the one fact that tells where
/// you are, a body, and a foot band with the way back at the left and the actions at the right, the
/// main one last.
class Screen : public QMainWindow {
    Q_OBJECT

public:
    /// `layoutKey` is the key under which the window's layout is kept; screens with the same one
    /// stand in the same place. One that keeps its layout under another key than it restores it
    /// from has a `saveKey`.
    Screen(const QString& name, const QString& title,
           const QString& layoutKey = QStringLiteral("TesselDelivery"),
           const QString& saveKey = {});
    ~Screen() override;

    /// Shows the screen in front, where the one before it stood.
    void BringUp();

    /// Runs each time the screen comes to the front.
    virtual void Activate() {}

Q_SIGNALS:
    /// The user closed the window with its close box, which ends the program.
    void ClosedByUser();

protected:
    /// The caption in the head band; the window's title unless set.
    void SetCaption(const QString& caption);
    void SetWhere(const QString& text);
    QLabel* WhereLabel() const { return where; }
    QWidget* Body() const { return body; }
    void AddWayBack(QWidget* control);
    void AddAction(QWidget* control);
    /// Adds a button last and makes it the one main button.
    void AddMainAction(QAbstractButton* button);

    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    QWidget* MakeHead(const QString& caption);
    QWidget* MakeFoot();

    QString restoredFrom;
    QString savedUnder;
    QLabel* captionLabel = nullptr;
    QLabel* where = nullptr;
    QWidget* body = nullptr;
    QHBoxLayout* wayBack = nullptr;
    QHBoxLayout* actions = nullptr;
};

/// Pixels between two cards.
constexpr int cardGap = 16;

/// What belongs together stands on one card.
class Card : public QFrame {
    Q_OBJECT

public:
    explicit Card(const QString& heading, QWidget* parent = nullptr);

    QVBoxLayout* Rows() const { return rows; }
    QLabel* Heading() const { return heading; }

private:
    QVBoxLayout* rows;
    QLabel* heading;
};

/// Gives a control the name by which tests, screen readers and support staff find it.
template <typename Control>
Control* Named(Control* control, const QString& name) {
    control->setObjectName(name);
    return control;
}

/// The name of one control of an array, for example "cmdPrint(3)".
QString Indexed(const QString& name, int index);
