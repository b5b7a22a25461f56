// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/guibase_export.h>

#include <QString>

class QWidget;

/// Something with settings that a settings dialog shows on a page of its own.
class GUIBASE_EXPORT IHasPropertyPage
{
public:
    virtual ~IHasPropertyPage();

    /// Makes a new page with the object name `name`; it belongs to `parent`. Null without a page.
    virtual QWidget* GetPropertyPage(QWidget* parent, const char* name) = 0;
    /// The translated title under which the dialog files the page.
    virtual QString GetPropertyPagePath() const = 0;
    /// Takes over what was changed on the page made last.
    virtual void slotAcceptPropertyChanges() = 0;
};
