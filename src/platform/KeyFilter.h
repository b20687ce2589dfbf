#pragma once

#include <QObject>

#include <functional>

class QLineEdit;

/// Runs each character that the user enters into a field past a rule before it gets there, typed
/// or pasted. The rule gives back the character to use, 0 for none.
class KeyFilter : public QObject {
    Q_OBJECT

public:
    using Rule = std::function<ushort(ushort key)>;

    /// Lives as long as the field.
    KeyFilter(QLineEdit* filteredField, Rule keyRule);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool Enter(QChar character);
    void Paste(const QString& text);
    void OpenMenu(const QPoint& place);

    QLineEdit* field;
    Rule rule;
};
