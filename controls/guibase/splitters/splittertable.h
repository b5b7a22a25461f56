// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <map>

class Splitter;

/// The positions of the application's splitters, by their storage names. What is stored is in the
/// configuration at once.
class SplitterTable
{
public:
    /// Takes the positions of a visible splitter over; nothing for others.
    void store(const QString& key, const Splitter* splitter);
    /// Gives the splitter the positions that were stored last, in this run or an earlier one.
    /// Damaged ones change nothing and are kept aside. A splitter without widgets stays as it is.
    void apply(const QString& key, Splitter* splitter) const;
    void writeConfiguration() const;

private:
    QString value(const QString& key) const;
    void setValue(const QString& key, const QString& value);

    std::map<QString, QString> m_values;
};
