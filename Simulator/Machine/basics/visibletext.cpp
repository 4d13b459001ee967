#include "visibletext.h"

namespace {

/// Whether it is a control character, breaks a line or embeds, overrides or isolates a direction of writing (Unicode's
/// bidirectional algorithm, UAX #9). Marks and joiners that languages are written with are not.
bool isHarmful(QChar letter)
{
    switch (letter.category()) {
    case QChar::Other_Control:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return true;
    default:
        break;
    }
    switch (letter.direction()) {
    case QChar::DirLRE:
    case QChar::DirLRO:
    case QChar::DirRLE:
    case QChar::DirRLO:
    case QChar::DirPDF:
    case QChar::DirLRI:
    case QChar::DirRLI:
    case QChar::DirFSI:
    case QChar::DirPDI:
        return true;
    default:
        return false;
    }
}

} // namespace

QString VisibleText::of(QString text, const QString &kept)
{
    for (QChar &letter : text) {
        if (isHarmful(letter) && !kept.contains(letter))
            letter = QLatin1Char('?');
    }
    return text;
}

QByteArray VisibleText::ofJson(const QByteArray &json)
{
    QString text;
    for (const QChar letter : QString::fromUtf8(json)) {
        if (isHarmful(letter) && letter != QLatin1Char('\n'))
            text += QStringLiteral("\\u%1").arg(letter.unicode(), 4, 16, QLatin1Char('0'));
        else
            text += letter;
    }
    return text.toUtf8();
}
