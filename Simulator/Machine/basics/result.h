#pragma once

#include <QString>

/// A value, or the one-line reason why there is none.
template <typename T> struct Result {
    T value{};
    QString error;

    bool isOk() const { return error.isEmpty(); }
    static Result failure(const QString &reason) { return {T{}, reason}; }
};
