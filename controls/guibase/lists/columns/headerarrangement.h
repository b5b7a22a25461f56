// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/records/columntext.h>

#include <QList>

class QHeaderView;

/// The sections of a header as column records and back, for lists and for headers of any view.
namespace HeaderArrangement {

/// A hidden section has the width that is known of it, or the default one.
QList<ColumnRecord> of(const QHeaderView& header, const QList<ColumnRecord>& known);

/// Arranges the sections from `first` on, as far as there are records; those before it, and those
/// without a record, stay as they are among one another. Records without a width, and with a place
/// that the header does not have, leave width and place to the header. One section always stays
/// visible.
void apply(QHeaderView& header, QList<ColumnRecord> columns, int first);

} // namespace HeaderArrangement
