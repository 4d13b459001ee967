#pragma once

#include <QString>
#include <QTemporaryFile>

#include <cstdio>

/// While it lives, catches what the process writes to standard output or standard error.
class StreamCapture {
public:
    /// `stream`: stdout or stderr.
    explicit StreamCapture(std::FILE *stream);
    ~StreamCapture();

    /// What the process has written out so far, without what the stream still buffers.
    QString written() const;

private:
    Q_DISABLE_COPY(StreamCapture)

    std::FILE *stream;
    int former;
    QTemporaryFile file;
};
