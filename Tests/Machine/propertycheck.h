#pragma once

#include <QString>
#include <QVariant>

class DataBrokerGroup;

/// Writes one property of a group by name in a broker of its own, and checks the result: the value, the notify signal,
/// and that no other property changed. Returns what is wrong; empty when nothing is. The broker, which lives as long as
/// the call, takes ownership of `group`.
QString problemOfProperty(DataBrokerGroup *group, const QString &property, const QVariant &value);
