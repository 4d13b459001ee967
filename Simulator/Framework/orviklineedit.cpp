#include "Framework/orviklineedit.h"

#include <QKeyEvent>
#include <QPainter>
#include <QRegularExpression>

#include <limits>

namespace {

constexpr QSize fieldSize(200, 50);

} // namespace

class OrvikLineEditPrivate {
public:
    bool accepts(const QString &candidate) const
    {
        if (candidate.isEmpty())
            return true;
        const QRegularExpression form(QStringLiteral("\\A(%1\\d{0,%2})(\\.\\d{0,%3})?\\z")
                                          .arg(minimum < 0.0 ? QStringLiteral("-?") : QString())
                                          .arg(integerDigits)
                                          .arg(decimals));
        return form.match(candidate).hasMatch() && candidate.toDouble() <= maximum;
    }

    int id = 0;
    unsigned int integerDigits = 9;
    unsigned int decimals = 9;
    double minimum = 0.0;
    double maximum = std::numeric_limits<double>::max();
    QString text;
    QFont font;
};

OrvikLineEdit::OrvikLineEdit(int id, const QDir &, const QPoint &position, QWidget *parent)
    : QWidget(parent)
    , d(new OrvikLineEditPrivate)
{
    d->id = id;
    setGeometry(QRect(position, fieldSize));
    setFocusPolicy(Qt::StrongFocus);
}

OrvikLineEdit::~OrvikLineEdit() = default;

int OrvikLineEdit::id() const
{
    return d->id;
}

void OrvikLineEdit::setNumericSizeLimits(unsigned int integerDigits, unsigned int decimals)
{
    d->integerDigits = integerDigits;
    d->decimals = decimals;
    d->minimum = 0.0;
    d->maximum = std::numeric_limits<double>::max();
}

void OrvikLineEdit::setNumericRange(double minimum, double maximum, unsigned int decimals)
{
    d->minimum = minimum;
    d->maximum = maximum;
    d->decimals = decimals;
}

void OrvikLineEdit::setTextFont(const QFont &font)
{
    d->font = font;
    update();
}

void OrvikLineEdit::setText(const QString &text)
{
    d->text = text;
    update();
}

QString OrvikLineEdit::getText() const
{
    return d->text;
}

void OrvikLineEdit::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), isEnabled() ? Qt::white : Qt::lightGray);
    painter.setPen(hasFocus() ? Qt::blue : Qt::darkGray);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    painter.setPen(Qt::black);
    painter.setFont(d->font);
    painter.drawText(rect().adjusted(8, 0, -8, 0), Qt::AlignVCenter | Qt::AlignRight, d->text);
}

void OrvikLineEdit::mousePressEvent(QMouseEvent *)
{
    setFocus(Qt::MouseFocusReason);
}

void OrvikLineEdit::mouseReleaseEvent(QMouseEvent *) { }

void OrvikLineEdit::keyPressEvent(QKeyEvent *event)
{
    QString candidate = d->text;
    if (event->key() == Qt::Key_Backspace)
        candidate.chop(1);
    else
        candidate += event->text();
    if (candidate == d->text || !d->accepts(candidate)) {
        QWidget::keyPressEvent(event);
        return;
    }
    setText(candidate);
    Q_EMIT textChanged(d->id);
}

void OrvikLineEdit::focusInEvent(QFocusEvent *event)
{
    QWidget::focusInEvent(event);
    update();
}

void OrvikLineEdit::focusOutEvent(QFocusEvent *event)
{
    QWidget::focusOutEvent(event);
    update();
}

void OrvikLineEdit::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    update();
}
