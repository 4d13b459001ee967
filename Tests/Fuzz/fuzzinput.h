#pragma once

#include <QByteArray>
#include <QString>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>

/// A harness's input: bytes that it takes numbers and parts from. After the end there are zeros.
class FuzzInput {
public:
    FuzzInput(const std::uint8_t *data, std::size_t size)
        : next(data)
        , left(size)
    {
    }

    bool isAtEnd() const { return left == 0; }

    /// As it lies in memory, so that every number can occur.
    template <typename Number> Number number()
    {
        Number value{};
        const std::size_t size = std::min(left, sizeof(Number));
        std::memcpy(&value, next, size);
        skip(size);
        return value;
    }
    /// The next `count` bytes, or what is left of them.
    QByteArray bytes(std::size_t size)
    {
        const std::size_t taken = std::min(left, size);
        const QByteArray part(reinterpret_cast<const char *>(next), static_cast<int>(taken));
        skip(taken);
        return part;
    }
    QByteArray rest() { return bytes(left); }

private:
    void skip(std::size_t size)
    {
        next += size;
        left -= size;
    }

    const std::uint8_t *next;
    std::size_t left;
};

/// Ends the program when a condition does not hold: a finding.
inline void require(bool holds, const char *what, const QString &detail = QString())
{
    if (holds)
        return;
    std::fprintf(stderr, "does not hold: %s %s\n", what, qPrintable(detail));
    std::abort();
}

/// Whether an error is one line that names the file.
inline bool isOneLineAbout(const QString &error, const QString &file)
{
    return error.startsWith(file) && !error.contains(QLatin1Char('\n'));
}

/// Runs one input; called by libFuzzer, or by replaymain.cpp for every file of a corpus.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);
