// SPDX-License-Identifier: MIT
#pragma once

#include <jtbase/imessagedlg.h>
#include <jtbase/jtbase_export.h>

#include <QString>

#include <memory>

/// The process-wide place where failures are reported: traces for developers, gated by a bit mask,
/// and the message dialog that shows errors to the user.
///
/// Traces land in the logging category "trov.trace" and, after SetTraceFile(), as lines in a file.
/// All operations may be called at any time after the start of main(), also without an application
/// object; tracing is thread-safe, everything else belongs to the GUI thread.
class JTBASE_EXPORT ErrorHandler
{
public:
    /// Bits of the trace mask. A trace is written only when the mask holds its bit.
    enum TraceBit : quint32 {
        TraceAssertions = 0x02,
        TracePlatform = 0x10,
        TraceGuiBase = 0x20,
        TraceMisuse = 0x40, ///< What the developer must mend, such as a missing slot.
    };

    /// The mask at start-up: assertions, platform reports and misuse.
    static constexpr quint32 defaultTraceFlags = TraceAssertions | TracePlatform | TraceMisuse;

    /// The trace mask, of TraceBit.
    static quint32 GetTraceFlags();
    static void SetTraceFlags(quint32 flags);
    /// True when the mask holds at least one of `bits`; ask before building an expensive text.
    static bool IsTraceEnabled(quint32 bits);

    /// Writes "module(line): text" when the mask holds a bit of `bits`.
    static void Trace(quint32 bits, const char* module, int line, const QString& text);

    /// Appends every trace to `fileName` too, as one UTF-8 line with the UTC time in front, written
    /// at once; an empty name stops that. False, with nothing changed, when the file cannot be
    /// opened for appending.
    static bool SetTraceFile(const QString& fileName);

    /// Reports the broken condition as a trace (bit TraceAssertions). The program goes on.
    static void Assertion(const char* condition, const char* module, int line);

    /// The dialog that shows messages to the user; null until one is set.
    static IMessageDlg* GetMessageDlg();
    /// Takes the dialog over and deletes the former one; null leaves no dialog. The last dialog is
    /// not deleted at the end of the process, when the application object is long gone.
    static void SetMessageDlg(std::unique_ptr<IMessageDlg> dialog);

    ErrorHandler() = delete;
};

/// Reports `condition` through ErrorHandler::Assertion() when it does not hold; yields whether it
/// holds, so that the caller can leave: `if (!TROV_ASSERT(p != nullptr, "module")) return;`
#define TROV_ASSERT(condition, module)                                                             \
    ((condition) ? true : (ErrorHandler::Assertion(#condition, module, __LINE__), false))
