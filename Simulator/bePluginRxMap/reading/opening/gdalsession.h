#pragma once

#include <QString>

/// While it lives, what GDAL reports in this thread is kept here instead of being printed, and GDAL neither reaches for
/// the network nor follows references out of a file. The first one in the process registers the file formats that the
/// back-end reads. Sessions of one thread nest.
class GdalSession {
public:
    GdalSession();
    ~GdalSession();

    /// The first failure reported so far, one line; empty when there was none. For a damaged database the text begins
    /// in the operator's language, before GDAL's own words.
    QString firstFailure() const;
    /// Takes what GDAL reports; for GDAL's callback.
    void takeReport(int severity, const char *text);

private:
    Q_DISABLE_COPY(GdalSession)

    QString failure;
    /// The thread's former options, a list of GDAL's; owned.
    char **optionsBefore;
};
