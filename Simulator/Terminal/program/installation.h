#pragma once

#include <QDir>

/// What comes with the program, where it is installed and in the build's own folder alike. Needs a QCoreApplication.
namespace Installation {

/// Where plug-ins are searched for: the folder `named`, if any, else the program's own.
QDir plugins(const QString &named);
/// The images that plug-ins and widgets draw.
QDir images();
/// A field to begin with; the file need not be there.
QString sampleField();

} // namespace Installation
