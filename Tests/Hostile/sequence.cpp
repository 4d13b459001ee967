#include "sequence.h"

#include <QStringList>

QString toText(const Sequence &steps)
{
    QString text;
    for (const Step &step : steps)
        text += QStringLiteral("%1 %2 %3\n").arg(step.action).arg(step.a).arg(step.b);
    return text;
}

Sequence fromText(const QString &text)
{
    Sequence steps;
    for (const QString &line : text.split(QLatin1Char('\n'))) {
        const QStringList words = line.split(QLatin1Char(' '));
        bool isFirst = false;
        bool isSecond = false;
        const Step step{words.value(0), words.value(1).toInt(&isFirst), words.value(2).toInt(&isSecond)};
        if (isFirst && isSecond && words.size() == 3)
            steps.append(step);
    }
    return steps;
}

Sequence shortest(Sequence steps, const std::function<bool(const Sequence &)> &fails)
{
    int parts = 2;
    while (steps.size() > 1) {
        const int length = (steps.size() + parts - 1) / parts;
        bool isShorter = false;
        for (int start = 0; start < steps.size() && !isShorter; start += length) {
            const Sequence rest = steps.mid(0, start) + steps.mid(start + length);
            isShorter = fails(rest);
            if (isShorter)
                steps = rest;
        }
        if (isShorter)
            parts = qMax(2, parts - 1);
        else if (length == 1)
            break;
        else
            parts = qMin(steps.size(), 2 * parts);
    }
    return steps;
}
