#include "gdalsession.h"

#include "Backend/backendtext.h"

#include <cpl_conv.h>
#include <cpl_error.h>
#include <cpl_string.h>
#include <mutex>
#include <ogr_srs_api.h>
#include <ogrsf_frmts.h>

namespace {

void CPL_STDCALL keepReport(CPLErr severity, CPLErrorNum, const char *text)
{
    static_cast<GdalSession *>(CPLGetErrorHandlerUserData())->takeReport(severity, text);
}

void registerFormats()
{
    RegisterOGRShape();
    RegisterOGRGeoPackage();
    RegisterOGRGeoJSON();
    RegisterOGRGeoJSONSeq();
    // GDAL's other reader of KML leaves out a placemark's own data, which hold the rates.
    RegisterOGRLIBKML();
    RegisterOGRFlatGeobuf();
    RegisterOGRGML();
    OSRSetPROJEnableNetwork(0);
}

} // namespace

GdalSession::GdalSession()
    : optionsBefore(CPLGetThreadLocalConfigOptions())
{
    CPLPushErrorHandlerEx(keepReport, this);
    static std::once_flag registered;
    std::call_once(registered, registerFormats);
    CPLSetThreadLocalConfigOption("GML_SKIP_RESOLVE_ELEMS", "ALL");
    CPLSetThreadLocalConfigOption("GML_DOWNLOAD_WFS_SCHEMA", "NO");
    // GDAL's other parser follows entities out of the file.
    CPLSetThreadLocalConfigOption("GML_PARSER", "EXPAT");
    // Otherwise a coordinate system that the projection database does not know is compared with all those in it, for up
    // to two seconds; it is used as written either way.
    CPLSetThreadLocalConfigOption("USE_OSR_FIND_MATCHES", "NO");
}

GdalSession::~GdalSession()
{
    CPLSetThreadLocalConfigOptions(optionsBefore);
    CSLDestroy(optionsBefore);
    CPLPopErrorHandler();
}

QString GdalSession::firstFailure() const
{
    // SQLite's words for a file whose pages contradict each other, and for one whose head is not that of a database.
    const bool isDamaged =
        failure.contains(QLatin1String("malformed")) || failure.contains(QLatin1String("not a database"));
    return isDamaged ? BackendText::tr("is damaged (%1)").arg(failure) : failure;
}

void GdalSession::takeReport(int severity, const char *text)
{
    if (severity >= CE_Failure && failure.isEmpty())
        failure = QString::fromUtf8(text).simplified();
}
