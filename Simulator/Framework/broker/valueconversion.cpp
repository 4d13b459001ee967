#include "Variants/valueconversion.h"

#include <QMetaType>

#include <cmath>
#include <limits>
#include <type_traits>

namespace {

bool isSignedInteger(int type)
{
    switch (type) {
    case QMetaType::Int:
    case QMetaType::LongLong:
    case QMetaType::Long:
    case QMetaType::Short:
    case QMetaType::Char:
    case QMetaType::SChar:
        return true;
    default:
        return false;
    }
}

bool isUnsignedInteger(int type)
{
    switch (type) {
    case QMetaType::Bool:
    case QMetaType::UInt:
    case QMetaType::ULongLong:
    case QMetaType::ULong:
    case QMetaType::UShort:
    case QMetaType::UChar:
        return true;
    default:
        return false;
    }
}

bool isText(int type)
{
    return type == QMetaType::QString || type == QMetaType::QByteArray;
}

/// The whole text; Qt's own conversion of bytes ends at a zero byte.
QString textOf(const QVariant &value)
{
    if (value.userType() != QMetaType::QByteArray)
        return value.toString();
    const QByteArray bytes = value.toByteArray();
    return QString::fromUtf8(bytes.constData(), bytes.size());
}

/// A number in the widest form that holds it exactly.
struct Number {
    enum Form { None, Signed, Unsigned, Real };

    Form form = None;
    qint64 whole = 0;
    quint64 positive = 0;
    double real = 0.0;
};

Number realNumber(double value)
{
    Number number;
    number.form = Number::Real;
    number.real = value;
    return number;
}

Number wholeNumber(qint64 value)
{
    Number number;
    number.form = Number::Signed;
    number.whole = value;
    return number;
}

Number positiveNumber(quint64 value)
{
    Number number;
    number.form = Number::Unsigned;
    number.positive = value;
    return number;
}

Number textNumber(const QString &text)
{
    bool ok = false;
    const qint64 whole = text.toLongLong(&ok);
    if (ok)
        return wholeNumber(whole);
    const quint64 positive = text.toULongLong(&ok);
    if (ok)
        return positiveNumber(positive);
    const double real = text.toDouble(&ok);
    // "nan" and "inf" parse too, but are not figures that somebody wrote down.
    return ok && std::isfinite(real) ? realNumber(real) : Number();
}

Number numberOf(const QVariant &value)
{
    const int type = value.userType();
    if (isSignedInteger(type))
        return wholeNumber(value.toLongLong());
    if (isUnsignedInteger(type))
        return positiveNumber(value.toULongLong());
    if (type == QMetaType::Double || type == QMetaType::Float)
        return realNumber(value.toDouble());
    if (isText(type))
        return textNumber(textOf(value));
    return {};
}

/// The real number 2^digits, just above the largest value of an integer type.
template <typename T> double upperBound()
{
    return std::ldexp(1.0, std::numeric_limits<T>::digits);
}

template <typename T> bool realToInteger(double value, T &result)
{
    const double least = std::is_signed<T>::value ? -upperBound<T>() : 0.0;
    if (!(value >= least && value < upperBound<T>()) || std::trunc(value) != value)
        return false;
    result = static_cast<T>(value);
    return true;
}

template <typename T> bool toInteger(const Number &number, T &result)
{
    using Limits = std::numeric_limits<T>;
    switch (number.form) {
    case Number::Signed:
        if (number.whole < 0) {
            if (!Limits::is_signed || number.whole < static_cast<qint64>(Limits::min()))
                return false;
        } else if (static_cast<quint64>(number.whole) > static_cast<quint64>(Limits::max())) {
            return false;
        }
        result = static_cast<T>(number.whole);
        return true;
    case Number::Unsigned:
        if (number.positive > static_cast<quint64>(Limits::max()))
            return false;
        result = static_cast<T>(number.positive);
        return true;
    case Number::Real:
        return realToInteger(number.real, result);
    case Number::None:
        break;
    }
    return false;
}

template <typename T> bool toReal(const Number &number, T &result)
{
    switch (number.form) {
    case Number::Signed: {
        qint64 back = 0;
        result = static_cast<T>(number.whole);
        return realToInteger(static_cast<double>(result), back) && back == number.whole;
    }
    case Number::Unsigned: {
        quint64 back = 0;
        result = static_cast<T>(number.positive);
        return realToInteger(static_cast<double>(result), back) && back == number.positive;
    }
    case Number::Real:
        if (std::isfinite(number.real) && std::fabs(number.real) > static_cast<double>(std::numeric_limits<T>::max()))
            return false;
        result = static_cast<T>(number.real);
        return std::isnan(number.real) || static_cast<double>(result) == number.real;
    case Number::None:
        break;
    }
    return false;
}

template <typename T> bool integerVariant(const QVariant &value, QVariant &converted)
{
    T result = 0;
    if (!toInteger(numberOf(value), result))
        return false;
    converted = QVariant::fromValue(result);
    return true;
}

template <typename T> bool realVariant(const QVariant &value, QVariant &converted)
{
    T result = 0;
    if (!toReal(numberOf(value), result))
        return false;
    converted = QVariant::fromValue(result);
    return true;
}

bool boolVariant(const QVariant &value, QVariant &converted)
{
    if (isText(value.userType())) {
        const QString text = textOf(value);
        if (text == QLatin1String("true") || text == QLatin1String("false")) {
            converted = text == QLatin1String("true");
            return true;
        }
    }
    quint8 number = 0;
    if (!toInteger(numberOf(value), number) || number > 1)
        return false;
    converted = number == 1;
    return true;
}

bool textVariant(const QVariant &value, QVariant &converted)
{
    const int type = value.userType();
    if (type == QMetaType::QByteArray) {
        const QString text = textOf(value);
        if (text.toUtf8() != value.toByteArray())
            return false;
        converted = text;
        return true;
    }
    if (!isSignedInteger(type) && !isUnsignedInteger(type) && type != QMetaType::Double && type != QMetaType::Float
        && type != QMetaType::QChar)
        return false;
    converted = value.toString();
    return true;
}

bool pointerVariant(const QVariant &value, QVariant &converted)
{
    if (value.userType() != QMetaType::Nullptr)
        return false;
    converted = QVariant::fromValue<void *>(nullptr);
    return true;
}

bool recordVariant(const QVariant &value, int type, QVariant &converted)
{
    if (!QMetaType::hasRegisteredConverterFunction(value.userType(), type))
        return false;
    QVariant copy = value;
    if (!copy.convert(type))
        return false;
    converted = copy;
    return true;
}

} // namespace

bool convertWithoutLoss(const QVariant &value, int type, QVariant &converted)
{
    if (!value.isValid())
        return false;
    if (value.userType() == type) {
        converted = value;
        return true;
    }
    switch (type) {
    case QMetaType::Bool:
        return boolVariant(value, converted);
    case QMetaType::Int:
        return integerVariant<int>(value, converted);
    case QMetaType::UInt:
        return integerVariant<unsigned int>(value, converted);
    case QMetaType::LongLong:
        return integerVariant<qlonglong>(value, converted);
    case QMetaType::ULongLong:
        return integerVariant<qulonglong>(value, converted);
    case QMetaType::Double:
        return realVariant<double>(value, converted);
    case QMetaType::Float:
        return realVariant<float>(value, converted);
    case QMetaType::QString:
        return textVariant(value, converted);
    case QMetaType::VoidStar:
        return pointerVariant(value, converted);
    default:
        return recordVariant(value, type, converted);
    }
}
