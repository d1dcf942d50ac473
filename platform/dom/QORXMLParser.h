#pragma once

#include "QORPlatform/text/QORExport.h"

/// The platform's access to the XML library.
class QOR_EXPORT QORXMLParser {
public:
    /// Makes sure that documents can be made; may be called any number of times.
    static void Initialize();
};
