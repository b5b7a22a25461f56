// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/records/columntext.h>

#include <QList>

class QHeaderView;

/// The sections of a header as column records and back, for lists and for headers of any view.
namespace HeaderArrangement {

/// A hidden section has the width that is known of it, or the default one.
QList<ColumnRecord> of(const QHeaderView& header, const QList<ColumnRecord>& known);

/// Arranges the sections from `first` on that have a record. The others keep their order among one
/// another. A record without a width leaves the width to the header; one with a place that the
/// header does not have leaves the place to it. The width of a last section that the header
/// stretches stays the header's, too. One section always stays visible.
void apply(QHeaderView& header, QList<ColumnRecord> columns, int first);

} // namespace HeaderArrangement
