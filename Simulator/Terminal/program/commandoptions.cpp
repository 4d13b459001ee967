#include "commandoptions.h"

#include <QCommandLineParser>

void declareOptions(QCommandLineParser &parser)
{
    parser.setApplicationDescription(
        QStringLiteral("Shows prescription maps as the terminal of a field computer does, with the plug-in loaded."));
    parser.addPositionalArgument(
        QStringLiteral("PRESCRIPTION"),
        QStringLiteral("prescription to open: Shapefile, GeoPackage, GeoJSON, KML, FlatGeobuf, "
                       "GML or task data, also in a .zip"),
        QStringLiteral("[PRESCRIPTION...]"));
    parser.addOptions({
        {columnsOption, QStringLiteral("rate columns for products 1, 2, ... (default: the most likely ones)"),
         QStringLiteral("A,B,...")},
        {sourceUnitsOption,
         QStringLiteral("units of the columns of products 1, 2, ...: lb/ac, gal/ac, seeds/m2, t/ha, ... (default: what "
                        "the file says)"),
         QStringLiteral("A,B,...")},
        {layerOption, QStringLiteral("which layer of a file that has several (default: the first that will do)"),
         QStringLiteral("NAME")},
        {taskOption, QStringLiteral("which task of a file that has several (default: the first that will do)"),
         QStringLiteral("NAME")},
        {openOption, QStringLiteral("start with the open window, which shows what the prescriptions hold")},
        {productsOption,
         QStringLiteral("JSON description of the machine's products (default: those of the first prescription)"),
         QStringLiteral("FILE")},
        {unitsOption, QStringLiteral("the operator's unit system: us, metric (default) or turf"),
         QStringLiteral("SYSTEM")},
        {languageOption, QStringLiteral("user-interface language: en, de, es, fr or pt_BR (default: the desktop's)"),
         QStringLiteral("CODE")},
        {themeOption, QStringLiteral("the display's looks: day or night (default: what suits the desktop)"),
         QStringLiteral("THEME")},
        {pluginDirOption, QStringLiteral("where plug-ins are searched (default: the plug-in of this build)"),
         QStringLiteral("DIR")},
        {describeOption, QStringLiteral("print what the terminal shows for that field point (metres) and exit"),
         QStringLiteral("X,Y")},
        {atOption, QStringLiteral("print what the terminal shows for that place on the earth (degrees) and exit"),
         QStringLiteral("LON,LAT")},
        {screenshotOption, QStringLiteral("draw, save the window as PNG and exit"), QStringLiteral("FILE")},
        {scriptOption, QStringLiteral("run a script and exit with its result"), QStringLiteral("FILE.js")},
        {driveOption,
         QStringLiteral("drive the whole field without a display, write what came of it (.json or .html) and exit"),
         QStringLiteral("REPORT")},
        {recordOption, QStringLiteral("with --drive: record every step (.csv or .gpkg)"), QStringLiteral("FILE")},
        {tuneOption, QStringLiteral("with --drive: look for the look-ahead that puts changes nearest to the borders")},
        {checkOption,
         QStringLiteral("say what is wrong with the prescriptions, without a display, and exit: with 0 when "
                        "nothing is, 2 when something is, 1 when one cannot be read")},
        {jsonOption, QStringLiteral("with --check: write what is found as JSON")},
        {{QStringLiteral("h"), helpOption}, QStringLiteral("show this help")},
    });
}
