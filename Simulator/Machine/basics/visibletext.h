#pragma once

#include <QByteArray>
#include <QString>

/// Texts with names from files, made harmless before they are shown or printed: what would clear a screen, begin a line
/// or turn the letters around it is written as question marks.
namespace VisibleText {

/// `kept`: characters that stay although they are of that kind.
QString of(QString text, const QString &kept = {});
/// JSON in UTF-8 with such characters as escapes: to whoever reads it, it is the same.
QByteArray ofJson(const QByteArray &json);

} // namespace VisibleText
