#pragma once

#include <QObject>

#include <limits>

class DataBroker;
struct ActiveMap;

/// Takes the answers that a map gives to point queries while this lives: a caller that has somebody else ask then knows
/// the answer to exactly that question.
class QueryListener : public QObject {
    Q_OBJECT

public:
    QueryListener(const DataBroker &broker, const ActiveMap &map, QObject *parent = nullptr);

    /// The map's rate in the latest answer, base units; not a number when no answer came or the answer holds no rate.
    double rate() const { return latestRate; }

private:
    double latestRate = std::numeric_limits<double>::quiet_NaN();
};
