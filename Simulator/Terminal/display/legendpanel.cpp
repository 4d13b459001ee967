#include "legendpanel.h"

#include "fieldscene.h"
#include "theme.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

constexpr int inset = 14;
constexpr int headHeight = 70;
constexpr int rowHeight = 38;
constexpr int swatchHeight = 28;
constexpr int panelWidth = 212;
constexpr int textLeft = swatchHeight + 22;
constexpr int maxText = 20;
constexpr int minText = 14;
const QString rangeDash = QStringLiteral(" \u2013 ");

/// A number with at least three significant digits and at least `decimals` decimals, without zeros at its end; no
/// exponent while it is short enough to be read.
QString numberText(double value, int decimals)
{
    constexpr double maxReadable = 1e12;
    if (value == 0.0)
        return QStringLiteral("0");
    if (std::fabs(value) >= maxReadable)
        return QString::number(value, 'g', 4);
    const int digits = int(std::floor(std::log10(std::fabs(value)))) + 1;
    QString text = QString::number(value, 'f', std::clamp(3 - digits, decimals, 4));
    if (text.contains(QLatin1Char('.'))) {
        while (text.endsWith(QLatin1Char('0')))
            text.chop(1);
        if (text.endsWith(QLatin1Char('.')))
            text.chop(1);
    }
    return text;
}

/// The limit of a class, which is round, as it is read at a glance.
QString limitText(double value)
{
    return numberText(value, 0);
}

/// A rate as exact as the answer at a touched point.
QString rateText(double value)
{
    return numberText(value, 2);
}

} // namespace

LegendPanel::LegendPanel(QWidget *parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("legend"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void LegendPanel::show(const Content &newContent)
{
    content = newContent;
    texts.clear();
    for (int i = 0; i < content.classes.size(); ++i)
        texts.append(classText(i));
    resize(sizeHint());
    update();
}

QString LegendPanel::classText(int index) const
{
    const OrvikTypes::RX_RATECOLOR &entry = content.classes.at(index);
    if (content.hasSingleRates)
        return rateText(entry.rate * content.factor);
    const QString limit = limitText(entry.rate * content.factor);
    // Zero is a class of its own, and no rate is below it.
    if (entry.rate == 0.0)
        return limit;
    if (index == 0)
        return QStringLiteral("\u2264 ") + limit;
    return limitText(content.classes.at(index - 1).rate * content.factor) + rangeDash + limit;
}

QFont LegendPanel::fittingFont(int width) const
{
    int pixels = maxText;
    for (const QString &text : texts) {
        const int needed = QFontMetrics(Theme::font(maxText, true)).horizontalAdvance(text);
        pixels = std::min(pixels, needed > width ? maxText * width / needed : maxText);
    }
    return Theme::font(std::max(pixels, minText), true);
}

QSize LegendPanel::sizeHint() const
{
    return QSize(panelWidth, headHeight + std::max(1, texts.size()) * rowHeight + inset / 2);
}

void LegendPanel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    Theme::drawPanel(painter, rect(), Theme::panel());
    const QRect inner = rect().adjusted(inset, 0, -inset, 0);
    drawHead(painter, inner);
    drawClasses(painter, inner);
}

void LegendPanel::drawHead(QPainter &painter, const QRect &inner) const
{
    painter.setFont(Theme::font(22, true));
    painter.setPen(Theme::text());
    painter.drawText(QRect(inner.left(), 10, inner.width(), 30), Qt::AlignVCenter,
                     painter.fontMetrics().elidedText(content.product, Qt::ElideRight, inner.width()));
    painter.setFont(Theme::font(16));
    painter.setPen(Theme::faintText());
    const QRect second(inner.left(), 40, inner.width(), 24);
    const int unitWidth = painter.fontMetrics().horizontalAdvance(content.unit);
    painter.drawText(second, Qt::AlignVCenter | Qt::AlignRight, content.unit);
    const int columnWidth = inner.width() - unitWidth - inset;
    painter.drawText(second, Qt::AlignVCenter,
                     painter.fontMetrics().elidedText(content.column, Qt::ElideMiddle, columnWidth));
    if (texts.isEmpty()) {
        painter.setFont(Theme::font(20));
        painter.drawText(QRect(inner.left(), headHeight, inner.width(), rowHeight), Qt::AlignVCenter, tr("No map"));
    }
}

void LegendPanel::drawClasses(QPainter &painter, const QRect &inner) const
{
    const int textWidth = inner.width() - textLeft;
    const QFont classFont = fittingFont(textWidth);
    const QFontMetrics metrics(classFont);
    for (int i = 0; i < texts.size(); ++i) {
        const QRect row(inner.left(), headHeight + i * rowHeight, inner.width(), rowHeight);
        const QRectF swatch(row.left() + 0.5, row.center().y() - swatchHeight / 2.0 + 0.5, swatchHeight + 8,
                            swatchHeight);
        painter.setPen(QPen(Theme::text(), 1.0));
        painter.setBrush(FieldScene::onGround(content.classes.at(i).color));
        painter.drawRoundedRect(swatch, 4.0, 4.0);
        // A range of long numbers takes two lines.
        QString text = texts.at(i);
        if (metrics.horizontalAdvance(text) > textWidth)
            text.replace(rangeDash, QStringLiteral(" \u2013\n"));
        painter.setFont(classFont);
        painter.setPen(Theme::text());
        painter.drawText(row.adjusted(textLeft, 0, 0, 0), Qt::AlignVCenter, text);
    }
}
