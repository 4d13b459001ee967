#include "missingsymbol.h"

#include <QVariant>

extern "C" int rxmapFunctionThatNobodyHas();

MissingSymbol::MissingSymbol()
{
    setProperty("answer", QVariant::fromValue(rxmapFunctionThatNobodyHas()));
}
