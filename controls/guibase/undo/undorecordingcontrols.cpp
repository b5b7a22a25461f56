// SPDX-License-Identifier: MIT
#include "undorecordingcontrols.h"

UndoRecordingControlBase::UndoRecordingControlBase() = default;
UndoRecordingControlBase::UndoRecordingControlBase(const UndoRecordingControlBase&) = default;
UndoRecordingControlBase&
UndoRecordingControlBase::operator=(const UndoRecordingControlBase&) = default;
UndoRecordingControlBase::~UndoRecordingControlBase() = default;

UndoRecordingControlContainerBase::UndoRecordingControlContainerBase() = default;
UndoRecordingControlContainerBase::UndoRecordingControlContainerBase(
    const UndoRecordingControlContainerBase&) = default;
UndoRecordingControlContainerBase&
UndoRecordingControlContainerBase::operator=(const UndoRecordingControlContainerBase&) = default;
UndoRecordingControlContainerBase::~UndoRecordingControlContainerBase() = default;
