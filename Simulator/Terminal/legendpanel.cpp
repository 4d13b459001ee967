#include "legendpanel.h"

#include "fieldscene.h"
#include "look.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

constexpr int Inset = 14;
constexpr int Head = 70;
constexpr int Row = 38;
constexpr int Swatch = 28;
constexpr int PanelWidth = 212;
constexpr int TextLeft = Swatch + 22;
constexpr int LargestText = 20;
constexpr int SmallestText = 11;

/// A limit as it is read at a glance: three significant digits, no exponent.
QString limitText(double value)
{
    if (value == 0.0)
        return QStringLiteral("0");
    const int digits = int(std::floor(std::log10(std::fabs(value)))) + 1;
    QString text = QString::number(value, 'f', std::clamp(3 - digits, 0, 4));
    if (text.contains(QLatin1Char('.'))) {
        while (text.endsWith(QLatin1Char('0')))
            text.chop(1);
        if (text.endsWith(QLatin1Char('.')))
            text.chop(1);
    }
    return text;
}

} // namespace

LegendPanel::LegendPanel(QWidget *parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("legend"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void LegendPanel::show(const QString &newTitle, const QString &newSource, const QList<OrvikTypes::RX_RATECOLOR> &legend,
                       double factor, const QString &newUnit)
{
    title = newTitle;
    source = newSource;
    unit = newUnit;
    texts.clear();
    colors.clear();
    for (int i = 0; i < legend.size(); ++i) {
        const QString limit = limitText(legend.at(i).rate * factor);
        const bool isLowest = i == 0 || legend.at(i - 1).rate < 0.0;
        const bool isZero = legend.at(i).rate == 0.0;
        texts.append(isZero         ? limit
                         : isLowest ? QStringLiteral("\u2264 ") + limit
                                    : limitText(legend.at(i - 1).rate * factor) + QStringLiteral(" \u2013 ") + limit);
        colors.append(FieldScene::onGround(legend.at(i).color));
    }
    resize(sizeHint());
    update();
}

QFont LegendPanel::fittingFont(int width) const
{
    int pixels = LargestText;
    for (const QString &text : texts) {
        const int needed = QFontMetrics(Look::font(LargestText, true)).horizontalAdvance(text);
        pixels = std::min(pixels, needed > width ? LargestText * width / needed : LargestText);
    }
    return Look::font(std::max(pixels, SmallestText), true);
}

QSize LegendPanel::sizeHint() const
{
    return QSize(PanelWidth, Head + std::max(1, texts.size()) * Row + Inset / 2);
}

void LegendPanel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    Look::drawPanel(painter, rect(), Look::panel());
    const QRect inner = rect().adjusted(Inset, 0, -Inset, 0);
    painter.setFont(Look::font(22, true));
    painter.setPen(Look::text());
    painter.drawText(QRect(inner.left(), 10, inner.width(), 30), Qt::AlignVCenter,
                     painter.fontMetrics().elidedText(title, Qt::ElideRight, inner.width()));
    painter.setFont(Look::font(16));
    painter.setPen(Look::faintText());
    const QRect second(inner.left(), 40, inner.width(), 24);
    const int unitWidth = painter.fontMetrics().horizontalAdvance(unit);
    painter.drawText(second, Qt::AlignVCenter | Qt::AlignRight, unit);
    painter.drawText(second, Qt::AlignVCenter,
                     painter.fontMetrics().elidedText(source, Qt::ElideMiddle, inner.width() - unitWidth - Inset));
    if (texts.isEmpty()) {
        painter.setFont(Look::font(20));
        painter.drawText(QRect(inner.left(), Head, inner.width(), Row), Qt::AlignVCenter, tr("No map"));
    }
    const QFont classFont = fittingFont(inner.width() - TextLeft);
    for (int i = 0; i < texts.size(); ++i) {
        const QRect row(inner.left(), Head + i * Row, inner.width(), Row);
        const QRectF swatch(row.left() + 0.5, row.center().y() - Swatch / 2 + 0.5, Swatch + 8, Swatch);
        painter.setPen(QPen(Look::text(), 1.0));
        painter.setBrush(colors.at(i));
        painter.drawRoundedRect(swatch, 4.0, 4.0);
        painter.setFont(classFont);
        painter.setPen(Look::text());
        painter.drawText(row.adjusted(TextLeft, 0, 0, 0), Qt::AlignVCenter, texts.at(i));
    }
}
