#pragma once

#include <QObject>

#include <limits>

class DataBroker;
struct ActiveMap;

/// Takes the answers that a map gives to point queries while this lives, so that whoever lets somebody else ask knows
/// what was answered to that question and no other.
class QueryListener : public QObject {
    Q_OBJECT

public:
    QueryListener(const DataBroker &broker, const ActiveMap &map, QObject *parent = nullptr);

    /// The map's rate in the latest answer, base units; not a number where no answer came or it holds no rate.
    double rate() const { return latestRate; }

private:
    double latestRate = std::numeric_limits<double>::quiet_NaN();
};
