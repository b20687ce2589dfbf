#pragma once

#include <QColor>
#include <QIcon>
#include <QPalette>
#include <QString>

class QApplication;

/// The colours of the program, light or dark. They all live here.
struct Theme {
    QColor window;
    QColor card;
    QColor field;
    QColor line;
    QColor text;
    QColor softText;
    QColor accent;
    QColor textOnAccent;
    QColor selectedRow;
    QColor selectedRowText;
    QColor iconTint;
    QColor gridHeading;
    QColor stripe;
    QColor warning;

    /// Dark when the desktop's window colour is darker than its text.
    static const Theme& For(const QPalette& desktop);
    /// The one in use, chosen by Apply.
    static const Theme& Current();
    /// Gives the application the colours that go with the desktop's.
    static void Apply(QApplication& application);
};

/// A line icon of the program's own set, drawn in a colour. `name` is its file in resources/icons
/// without the extension.
QPixmap LineIcon(const QString& name, const QColor& color, QSize size, double pixelRatio);

/// A length in heights of the desktop's font, so that sizes follow the desktop's font.
int Em(double heights);
