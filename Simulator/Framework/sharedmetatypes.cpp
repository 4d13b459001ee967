#include "Framework/rxdbfcolumntoratecalmapping.h"
#include "Framework/rxpolygon.h"
#include "Framework/rxsettings.h"
#include "Framework/spnoperationalsetstruct.h"
#include "Framework/spnswitchbytecalsettingsstruct.h"
#include "Framework/xyz.h"

/// Defines what ORVIK_DECLARE_SHARED_METATYPE declares: `TYPE` is registered, once, under the name as written here.
#define ORVIK_DEFINE_SHARED_METATYPE(TYPE)                                                                             \
    int QMetaTypeId<TYPE>::qt_metatype_id()                                                                            \
    {                                                                                                                  \
        static const int id = qRegisterMetaType<TYPE>(#TYPE, reinterpret_cast<TYPE *>(quintptr(-1)));                  \
        return id;                                                                                                     \
    }

QT_BEGIN_NAMESPACE

ORVIK_DEFINE_SHARED_METATYPE(OrvikTypes::RX_SETTINGS)
ORVIK_DEFINE_SHARED_METATYPE(QList<OrvikTypes::RX_SETTINGS>)
ORVIK_DEFINE_SHARED_METATYPE(OrvikTypes::RX_DBFCOLUMN_TO_RATECAL_MAPPING)
ORVIK_DEFINE_SHARED_METATYPE(QList<OrvikTypes::RX_DBFCOLUMN_TO_RATECAL_MAPPING>)
ORVIK_DEFINE_SHARED_METATYPE(OrvikTypes::RX_RATECOLOR)
ORVIK_DEFINE_SHARED_METATYPE(QList<OrvikTypes::RX_RATECOLOR>)
ORVIK_DEFINE_SHARED_METATYPE(QList<QList<OrvikTypes::RX_RATECOLOR>>)
ORVIK_DEFINE_SHARED_METATYPE(OrvikTypes::XYZ)
ORVIK_DEFINE_SHARED_METATYPE(OrvikTypes::SPN_OperationalSetStruct)
ORVIK_DEFINE_SHARED_METATYPE(OrvikTypes::SPN_SwitchByteCalSettingsStruct)

QT_END_NAMESPACE
