#pragma once

#include <QCollator>
#include <QString>

/// Sorts names of files as people read them, in any language of the terminal: "field 2" before "Field 10".
class NaturalOrder {
public:
    // The plain locale, which a terminal may have, compares bytes.
    NaturalOrder()
        : collator(QLocale(QLocale::English))
    {
        collator.setNumericMode(true);
        collator.setCaseSensitivity(Qt::CaseInsensitive);
    }

    bool operator()(const QString &a, const QString &b) const { return collator.compare(a, b) < 0; }

private:
    QCollator collator;
};
