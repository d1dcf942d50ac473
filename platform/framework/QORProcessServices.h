#pragma once

#include "QORPlatform/text/QORExport.h"

/// Value of an environment variable, null when it isn't set and for a null name. The text is the environment's own.
QOR_EXPORT const char* QORGetEnv(const char* iName);

/// Ends the run: writes the text and the source path to standard error, calls the last function and aborts.
[[noreturn]] QOR_EXPORT void QORFatalError(const char* iText, const char* iSource);

/// Function that QORFatalError calls once, before it aborts, to save what can be saved; null for none.
QOR_EXPORT void QORSetLastFunction(void (*iFunction)());
