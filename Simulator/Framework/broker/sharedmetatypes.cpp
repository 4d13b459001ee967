#include "Framework/rxdbfcolumntoratecalmapping.h"
#include "Framework/rxpolygon.h"
#include "Framework/rxsettings.h"
#include "Framework/spnoperationalsetstruct.h"
#include "Framework/spnswitchbytecalsettingsstruct.h"
#include "Framework/xyz.h"

// NOLINTBEGIN(bugprone-macro-parentheses, performance-no-int-to-ptr): a type takes no parentheses, and the pointer that
// is none tells Qt to give the type an id of its own.

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

// NOLINTEND(bugprone-macro-parentheses, performance-no-int-to-ptr)

namespace {

/// Properties and signals find their types by name, so the names stand as soon as the library is loaded.
void registerSharedTypes()
{
    qMetaTypeId<OrvikTypes::RX_SETTINGS>();
    qMetaTypeId<QList<OrvikTypes::RX_SETTINGS>>();
    qMetaTypeId<OrvikTypes::RX_DBFCOLUMN_TO_RATECAL_MAPPING>();
    qMetaTypeId<QList<OrvikTypes::RX_DBFCOLUMN_TO_RATECAL_MAPPING>>();
    qMetaTypeId<OrvikTypes::RX_RATECOLOR>();
    qMetaTypeId<QList<OrvikTypes::RX_RATECOLOR>>();
    qMetaTypeId<QList<QList<OrvikTypes::RX_RATECOLOR>>>();
    qMetaTypeId<OrvikTypes::XYZ>();
    qMetaTypeId<OrvikTypes::SPN_OperationalSetStruct>();
    qMetaTypeId<OrvikTypes::SPN_SwitchByteCalSettingsStruct>();
}

} // namespace

Q_CONSTRUCTOR_FUNCTION(registerSharedTypes)
