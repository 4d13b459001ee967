#pragma once

#include <QString>

class QCommandLineParser;

// Names of the options, without their dashes.

inline const QString columnsOption = QStringLiteral("columns");
inline const QString sourceUnitsOption = QStringLiteral("source-units");
inline const QString layerOption = QStringLiteral("layer");
inline const QString taskOption = QStringLiteral("task");
inline const QString openOption = QStringLiteral("open");
inline const QString productsOption = QStringLiteral("products");
inline const QString unitsOption = QStringLiteral("units");
inline const QString languageOption = QStringLiteral("language");
inline const QString themeOption = QStringLiteral("theme");
inline const QString pluginDirOption = QStringLiteral("plugin-dir");
inline const QString describeOption = QStringLiteral("describe");
inline const QString atOption = QStringLiteral("at");
inline const QString screenshotOption = QStringLiteral("screenshot");
inline const QString scriptOption = QStringLiteral("script");
inline const QString driveOption = QStringLiteral("drive");
inline const QString recordOption = QStringLiteral("record");
inline const QString tuneOption = QStringLiteral("tune");
inline const QString checkOption = QStringLiteral("check");
inline const QString jsonOption = QStringLiteral("json");
inline const QString helpOption = QStringLiteral("help");

/// Tells the parser of all options, and what the help says of them.
void declareOptions(QCommandLineParser &parser);
