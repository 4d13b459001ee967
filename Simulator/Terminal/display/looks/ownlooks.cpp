#include "ownlooks.h"

#include <QApplication>
#include <QPalette>
#include <QStyleFactory>

#include <algorithm>
#include <cmath>

namespace {

/// More than any screen holds.
constexpr double mostScale = 8.0;

const QColor page(244, 247, 249);
const QColor field(255, 255, 255);
const QColor ink(0, 0, 0);
const QColor faintInk(110, 118, 126);
const QColor highlight(11, 85, 144);

/// Sets every role in every group: any left out would come from the desktop.
QPalette lightPalette()
{
    QPalette palette(ink, page, Qt::white, page.darker(160), page.darker(125), ink, Qt::white, field, page);
    for (const QPalette::ColorRole role : {QPalette::Link, QPalette::LinkVisited, QPalette::Highlight})
        palette.setColor(role, highlight);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::AlternateBase, page);
    palette.setColor(QPalette::ToolTipBase, field);
    palette.setColor(QPalette::ToolTipText, ink);
    palette.setColor(QPalette::PlaceholderText, faintInk);
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, faintInk);
    return palette;
}

} // namespace

double OwnLooks::fixResolution()
{
    const double scale = qgetenv("QT_SCALE_FACTOR").toDouble();
    qputenv("QT_FONT_DPI", "96");
    QCoreApplication::setAttribute(Qt::AA_DisableHighDpiScaling);
    for (const char *variable : {"QT_SCALE_FACTOR", "QT_SCREEN_SCALE_FACTORS"})
        qunsetenv(variable);
    return std::isfinite(scale) ? std::min(std::max(scale, 0.0), mostScale) : 0.0;
}

void OwnLooks::apply()
{
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setPalette(lightPalette());
}
