#include "platform/Theme.h"

#include <QApplication>
#include <QFile>
#include <QFontMetrics>
#include <QPainter>
#include <QStyleFactory>
#include <QSvgRenderer>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

const Theme lightTheme{
    .window = QColor(0xF4F6F8),
    .card = QColor(0xFFFFFF),
    .field = QColor(0xFFFFFF),
    .line = QColor(0xD5DBE1),
    .text = QColor(0x1C2733),
    .softText = QColor(0x55636F),
    .accent = QColor(0x0B6E69),
    .textOnAccent = QColor(0xFFFFFF),
    .selectedRow = QColor(0xD9EEEC),
    .selectedRowText = QColor(0x0B3B38),
    .iconTint = QColor(0xE4F1F0),
    .gridHeading = QColor(0xEAEEF1),
    .stripe = QColor(0xF8FAFB),
    .warning = QColor(0xB42318),
};

const Theme darkTheme{
    .window = QColor(0x14191E),
    .card = QColor(0x1C232A),
    .field = QColor(0x171D23),
    .line = QColor(0x38434D),
    .text = QColor(0xE6EBF0),
    .softText = QColor(0xA3B0BC),
    .accent = QColor(0x4DB6AC),
    .textOnAccent = QColor(0x08211F),
    .selectedRow = QColor(0x21494A),
    .selectedRowText = QColor(0xE4F6F4),
    .iconTint = QColor(0x1E3435),
    .gridHeading = QColor(0x232C34),
    .stripe = QColor(0x1F272E),
    .warning = QColor(0xFF8A7A),
};

const Theme* current = &lightTheme;

QPalette PaletteOf(const Theme& theme) {
    QPalette palette;
    palette.setColor(QPalette::Window, theme.window);
    palette.setColor(QPalette::WindowText, theme.text);
    palette.setColor(QPalette::Base, theme.field);
    palette.setColor(QPalette::AlternateBase, theme.stripe);
    palette.setColor(QPalette::Text, theme.text);
    palette.setColor(QPalette::PlaceholderText, theme.softText);
    palette.setColor(QPalette::Button, theme.card);
    palette.setColor(QPalette::ButtonText, theme.text);
    palette.setColor(QPalette::ToolTipBase, theme.card);
    palette.setColor(QPalette::ToolTipText, theme.text);
    palette.setColor(QPalette::Highlight, theme.selectedRow);
    palette.setColor(QPalette::HighlightedText, theme.selectedRowText);
    palette.setColor(QPalette::Link, theme.accent);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        QColor pale = theme.softText;
        constexpr int paleness = 150;
        pale.setAlpha(paleness);
        palette.setColor(QPalette::Disabled, role, pale);
    }
    return palette;
}

/// The sheet with its $colour names filled in.
QString StyleSheetOf(const Theme& theme) {
    QFile file(u":/style.qss"_s);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QString sheet = QString::fromUtf8(file.readAll());
    // A longer name goes before the one it begins with.
    const std::pair<QString, QColor> colors[] = {
        {u"$selectedRowText"_s, theme.selectedRowText},
        {u"$selectedRow"_s, theme.selectedRow},
        {u"$textOnAccent"_s, theme.textOnAccent},
        {u"$softText"_s, theme.softText},
        {u"$gridHeading"_s, theme.gridHeading},
        {u"$iconTint"_s, theme.iconTint},
        {u"$window"_s, theme.window},
        {u"$stripe"_s, theme.stripe},
        {u"$accent"_s, theme.accent},
        {u"$field"_s, theme.field},
        {u"$card"_s, theme.card},
        {u"$line"_s, theme.line},
        {u"$text"_s, theme.text},
        {u"$warning"_s, theme.warning},
    };
    for (const auto& [name, color] : colors)
        sheet.replace(name, color.name());
    // A style sheet can't colour a picture, so there is one for each scheme.
    const QString scheme = &theme == &darkTheme ? u"dark"_s : u"light"_s;
    for (const QString& picture : {u"check"_s, u"chevron"_s})
        sheet.replace(u'$' + picture, u":/icons/%1-%2.svg"_s.arg(picture, scheme));
    return sheet;
}

} // namespace

const Theme& Theme::For(const QPalette& desktop) {
    const bool isDark = desktop.color(QPalette::Window).lightness() <
                        desktop.color(QPalette::WindowText).lightness();
    return isDark ? darkTheme : lightTheme;
}

const Theme& Theme::Current() {
    return *current;
}

void Theme::Apply(QApplication& application) {
    Q_INIT_RESOURCE(look);
    current = &For(application.palette());
    QApplication::setStyle(QStyleFactory::create(u"Fusion"_s));
    QApplication::setPalette(PaletteOf(*current));
    application.setStyleSheet(StyleSheetOf(*current));
}

QPixmap LineIcon(const QString& name, const QColor& color, QSize size, double pixelRatio) {
    QFile file(u":/icons/"_s + name + u".svg"_s);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QByteArray drawing = file.readAll();
    drawing.replace("currentColor", color.name().toLatin1());
    QPixmap pixmap(size * pixelRatio);
    pixmap.setDevicePixelRatio(pixelRatio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    QSvgRenderer(drawing).render(&painter, QRectF(QPointF(), size));
    return pixmap;
}

int Em(double heights) {
    return int(std::lround(heights * QFontMetrics(QApplication::font()).height()));
}
