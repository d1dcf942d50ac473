#pragma once

#include "QORPlatform/text/QORExport.h"

#include <stdexcept>
#include <string>

/// Raised when the XML library refuses what is asked of a document: a name that isn't one, a node under itself or in
/// another document, a second top element. The document is as before. No exception of the XML library itself leaves the
/// platform; where memory ran out, it is std::bad_alloc.
class QOR_EXPORT QORDomError : public std::runtime_error {
public:
    explicit QORDomError(const std::string& iMessage);
    ~QORDomError() override;
};
