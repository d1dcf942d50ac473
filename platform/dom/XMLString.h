#pragma once

#include "QORPlatform/text/QORExport.h"

/// Narrow text of wide text.
class QOR_EXPORT XMLString {
public:
    /// UTF-8 of a zero-terminated wide text, in new memory that release frees; null gives null. Half a surrogate pair
    /// becomes U+FFFD.
    static char* transcode(const unsigned short* iWide);

    /// Frees what transcode gave and sets the pointer to null. Does nothing for null or a pointer that is null.
    static void release(char** ioText);
};
