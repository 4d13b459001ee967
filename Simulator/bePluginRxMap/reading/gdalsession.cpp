#include "gdalsession.h"

#include <cpl_error.h>
#include <mutex>
#include <ogrsf_frmts.h>

namespace {

void CPL_STDCALL keepReport(CPLErr severity, CPLErrorNum, const char *text)
{
    static_cast<GdalSession *>(CPLGetErrorHandlerUserData())->takeReport(severity, text);
}

} // namespace

GdalSession::GdalSession()
{
    CPLPushErrorHandlerEx(keepReport, this);
    static std::once_flag registered;
    std::call_once(registered, [] {
        RegisterOGRShape();
        RegisterOGRGeoPackage();
        RegisterOGRGeoJSON();
    });
}

GdalSession::~GdalSession()
{
    CPLPopErrorHandler();
}

void GdalSession::takeReport(int severity, const char *text)
{
    if (severity >= CE_Failure && failure.isEmpty())
        failure = QString::fromUtf8(text).simplified();
}
