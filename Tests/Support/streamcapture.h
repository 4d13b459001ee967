#pragma once

#include <QString>
#include <QTemporaryFile>

#include <cstdio>

/// Keeps what the process writes to standard output or standard error while it lives from going there.
class StreamCapture {
public:
    /// `stream`: stdout or stderr.
    explicit StreamCapture(std::FILE *stream);
    ~StreamCapture();

    /// What has left the process so far; what the stream still holds back is not in it.
    QString written() const;

private:
    Q_DISABLE_COPY(StreamCapture)

    std::FILE *stream;
    int former;
    QTemporaryFile file;
};
