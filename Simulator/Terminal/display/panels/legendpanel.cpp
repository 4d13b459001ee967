#include "legendpanel.h"

#include "Backend/shownrate.h"
#include "fieldscene.h"
#include "shownnumber.h"
#include "textlines.h"
#include "theme.h"
#include "visibletext.h"

#include <QPainter>

#include <algorithm>
#include <numeric>

namespace {

constexpr int inset = 14;
constexpr int headTop = 10;
constexpr int productPixels = 22;
constexpr int productHeight = 28;
/// For a name that takes two lines, since what tells it from another name may stand anywhere in it.
constexpr int longProductPixels = 17;
constexpr int longProductHeight = 21;
constexpr int columnPixels = 16;
constexpr int columnHeight = 20;
/// Letters reach a little into the line below.
constexpr int lineOverlap = 2;
constexpr int unitsHeight = 26;
constexpr int mostNameLines = 2;
constexpr int swatchWidth = 32;
constexpr int panelWidth = 252;
constexpr int innerWidth = panelWidth - 2 * inset;
constexpr int textLeft = swatchWidth + 12;
constexpr int footLine = 26;
constexpr int maxText = 20;
constexpr int minText = 13;
const QString rangeDash = QStringLiteral(" \u2013 ");

/// An area or amount with two decimals, one from ten on, none from a hundred on.
QString sumText(double value)
{
    const int decimals = value < 10.0 ? 2 : value < 100.0 ? 1 : 0;
    constexpr double least = 0.01;
    return value > 0.0 && value < least ? QStringLiteral("< ") + ShownNumber::text(least, 2)
                                        : ShownNumber::text(value, decimals);
}

/// A font small enough for all texts to fit into `width` pixels, if it stays legible.
QFont fittingFont(const QStringList &texts, int pixels, int width, bool isBold)
{
    const QFontMetrics metrics(Theme::font(pixels, isBold));
    int fitting = pixels;
    for (const QString &text : texts) {
        const int needed = metrics.horizontalAdvance(text);
        fitting = std::min(fitting, needed > width ? pixels * width / needed : pixels);
    }
    return Theme::font(std::max(fitting, minText), isBold);
}

/// A name on one line; if it does not fit, in the smaller font on as many lines as it may take.
QStringList nameLines(const QString &name, const QFont &font, const QFont &smaller)
{
    const bool fits = QFontMetrics(font).horizontalAdvance(name) <= innerWidth;
    return TextLines::of(name, QFontMetrics(fits ? font : smaller), innerWidth, fits ? 1 : mostNameLines);
}

int widest(const QStringList &texts, const QFont &font)
{
    int width = 0;
    for (const QString &text : texts)
        width = std::max(width, QFontMetrics(font).horizontalAdvance(text));
    return width;
}

} // namespace

LegendPanel::LegendPanel(QWidget *parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("legend"));
    setAccessibleName(tr("Legend"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void LegendPanel::show(const Content &newContent)
{
    content = newContent;
    productLines = nameLines(content.product, Theme::font(productPixels, true), Theme::font(longProductPixels, true));
    columnLines = nameLines(content.source.column, Theme::font(columnPixels), Theme::font(columnPixels));
    texts.clear();
    areaTexts.clear();
    for (int i = 0; i < content.classes.size(); ++i) {
        texts.append(classText(i));
        areaTexts.append(i < content.areas.size() ? sumText(content.areas.at(i)) : QString());
    }
    QStringList told{content.product};
    if (!texts.isEmpty())
        told << content.source.column << sourceText();
    setAccessibleDescription(
        VisibleText::of(told.join(QStringLiteral(", ")) + QStringLiteral(": ") + texts.join(QStringLiteral("; "))));
    resize(sizeHint());
    update();
}

QString LegendPanel::classText(int index) const
{
    const auto limitOf = [this](int place) {
        return ShownNumber::inLanguage(ShownRate::text(content.classes.at(place).rate * content.factor));
    };
    // Zero is a class of its own: no rate is below it.
    if (content.hasSingleRates || content.classes.at(index).rate == 0.0)
        return limitOf(index);
    return index == 0 ? QStringLiteral("\u2264 ") + limitOf(0) : limitOf(index - 1) + rangeDash + limitOf(index);
}

QString LegendPanel::sourceText() const
{
    const QString &unit = content.source.unit;
    switch (content.source.unitFrom) {
    case RateSource::UnitFrom::Operator:
        return tr("%1 named by the operator").arg(unit);
    case RateSource::UnitFrom::Format:
        return tr("%1 from the format").arg(unit);
    case RateSource::UnitFrom::Column:
        return tr("%1 from another column").arg(unit);
    case RateSource::UnitFrom::Text:
        return tr("%1 from the texts").arg(unit);
    case RateSource::UnitFrom::Name:
        return tr("%1 from the name").arg(unit);
    case RateSource::UnitFrom::Assumed:
        break;
    }
    return unit.isEmpty() ? tr("unit not known") : tr("not known, taken as %1").arg(unit);
}

int LegendPanel::rowHeight() const
{
    const bool areNamesLong = productLines.size() > 1 || columnLines.size() > 1;
    constexpr int wideRow = 38;
    const int narrowRow = areNamesLong ? 24 : 26;
    const int mostWideRows = areNamesLong ? 7 : 8;
    return texts.size() <= mostWideRows ? wideRow : narrowRow;
}

int LegendPanel::namesHeight() const
{
    const int product = productLines.size() > 1 ? productLines.size() * longProductHeight : productHeight;
    return headTop + product + std::max(1, columnLines.size()) * columnHeight;
}

int LegendPanel::headHeight() const
{
    constexpr int gap = 8;
    return namesHeight() + columnHeight + gap + unitsHeight;
}

QSize LegendPanel::sizeHint() const
{
    if (texts.isEmpty())
        return QSize(panelWidth, headHeight());
    const int footLines = (content.areaUnit.isEmpty() ? 0 : 1) + (content.amountUnit.isEmpty() ? 0 : 1);
    const int footHeight = footLine * footLines + inset;
    return QSize(panelWidth, headHeight() + texts.size() * rowHeight() + footHeight);
}

void LegendPanel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    Theme::drawPanel(painter, rect(), Theme::colors().panel);
    const QRect inner = rect().adjusted(inset, 0, -inset, 0);
    drawHead(painter, inner);
    if (texts.isEmpty())
        return;
    drawClasses(painter, inner);
    drawFoot(painter, inner);
}

void LegendPanel::drawHead(QPainter &painter, const QRect &inner) const
{
    drawNames(painter, inner);
    painter.setPen(Theme::colors().faintText);
    if (texts.isEmpty()) {
        painter.setFont(Theme::font(20));
        painter.drawText(QRect(inner.left(), namesHeight() - 8, inner.width(), 38), Qt::AlignVCenter, tr("No map"));
        return;
    }
    const QString told = sourceText();
    painter.setFont(fittingFont({told}, columnPixels, inner.width(), false));
    painter.drawText(QRect(inner.left(), namesHeight(), inner.width(), columnHeight + lineOverlap), Qt::AlignVCenter,
                     TextLines::elided(told, painter.fontMetrics(), inner.width(), Qt::ElideRight));
    painter.setFont(Theme::font(columnPixels));
    const QRect units(inner.left(), headHeight() - unitsHeight, inner.width(), 24);
    painter.setPen(Theme::colors().text);
    painter.drawText(units.adjusted(textLeft, 0, 0, 0), Qt::AlignVCenter, content.unit);
    painter.drawText(units, Qt::AlignVCenter | Qt::AlignRight, content.areaUnit);
    painter.setPen(QPen(Theme::colors().faintText, 1.0));
    painter.drawLine(units.topLeft(), units.topRight());
}

void LegendPanel::drawNames(QPainter &painter, const QRect &inner) const
{
    const bool isLong = productLines.size() > 1;
    int y = headTop;
    const auto draw = [&](const QString &text, int height) {
        painter.drawText(QRect(inner.left(), y, inner.width(), height + lineOverlap), Qt::AlignVCenter, text);
        y += height;
    };
    painter.setFont(Theme::font(isLong ? longProductPixels : productPixels, true));
    painter.setPen(Theme::colors().text);
    for (const QString &line : productLines)
        draw(line, isLong ? longProductHeight : productHeight);
    painter.setFont(Theme::font(columnPixels));
    painter.setPen(Theme::colors().faintText);
    for (const QString &line : columnLines)
        draw(line, columnHeight);
}

void LegendPanel::drawClasses(QPainter &painter, const QRect &inner) const
{
    const QFont areaFont = Theme::font(16);
    const int textWidth = inner.width() - textLeft - widest(areaTexts, areaFont) - 8;
    const QFont classFont = fittingFont(texts, maxText, textWidth, true);
    const QFontMetrics metrics(classFont);
    const int height = rowHeight();
    const int swatchHeight = height - 8;
    for (int i = 0; i < texts.size(); ++i) {
        const QRect row(inner.left(), headHeight() + i * height, inner.width(), height);
        const QRectF swatch(row.left() + 0.5, row.center().y() - swatchHeight / 2.0 + 0.5, swatchWidth, swatchHeight);
        painter.setPen(QPen(Theme::colors().text, 1.0));
        painter.setBrush(FieldScene::onGround(content.classes.at(i).color));
        painter.drawRoundedRect(swatch, 4.0, 4.0);
        // A range of long numbers takes two lines.
        QString text = texts.at(i);
        if (metrics.horizontalAdvance(text) > textWidth)
            text.replace(rangeDash, QStringLiteral(" \u2013\n"));
        painter.setFont(classFont);
        painter.drawText(row.adjusted(textLeft, 0, 0, 0), Qt::AlignVCenter, text);
        painter.setFont(areaFont);
        painter.drawText(row, Qt::AlignVCenter | Qt::AlignRight, areaTexts.at(i));
    }
}

void LegendPanel::drawFoot(QPainter &painter, const QRect &inner) const
{
    if (content.areaUnit.isEmpty())
        return;
    const int top = headHeight() + texts.size() * rowHeight() + 4;
    painter.setPen(QPen(Theme::colors().faintText, 1.0));
    painter.drawLine(inner.left(), top, inner.right(), top);
    const auto drawLine = [&](int line, const QString &what, const QString &sum) {
        const QRect row(inner.left(), top + 4 + line * footLine, inner.width(), footLine);
        painter.setFont(Theme::font(16));
        painter.setPen(Theme::colors().faintText);
        painter.drawText(row, Qt::AlignVCenter, what);
        painter.setFont(
            fittingFont({sum}, 18, inner.width() - painter.fontMetrics().horizontalAdvance(what) - 8, true));
        painter.setPen(Theme::colors().text);
        painter.drawText(row, Qt::AlignVCenter | Qt::AlignRight, sum);
    };
    const auto withUnit = [](double sum, const QString &unit) { return sumText(sum) + QLatin1Char(' ') + unit; };
    drawLine(0, tr("Area"),
             withUnit(std::accumulate(content.areas.begin(), content.areas.end(), 0.0), content.areaUnit));
    if (!content.amountUnit.isEmpty())
        drawLine(1, tr("Total"), withUnit(content.amount, content.amountUnit));
}
