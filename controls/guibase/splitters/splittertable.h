// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/records/recordstore.h>

#include <QString>

class Splitter;

/// The positions of the application's splitters, by their storage names. What is stored is in the
/// configuration at once, and nowhere else: another process may store meanwhile.
class SplitterTable
{
public:
    /// Takes the positions of a visible splitter over; nothing for others. Damaged ones that were
    /// there are kept aside.
    void store(const QString& key, const Splitter* splitter) const;
    /// Gives the splitter the positions that were stored last, in this run or an earlier one.
    /// Damaged ones change nothing and are kept aside. A splitter without widgets stays as it is.
    void apply(const QString& key, Splitter* splitter) const;
    /// Removes what is stored. The splitter stays as it is.
    void forget(const QString& key) const;

private:
    RecordStore m_store{LayoutView, QStringLiteral("Splitter")};
};
