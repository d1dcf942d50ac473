#pragma once

#include "QORPlatform/framework/QORStatus.h"
#include "QORPlatform/text/QORUnicodeString.h"

#include <unordered_map>

/// Int values by name that the components of one name share, for as long as the process runs. What a person has set;
/// a value that was never set isn't there, so that a reader keeps its own default.
class QOR_EXPORT QORSettingStore {
public:
    /// The store of the component that is registered as iComponent; made at the first call, never destroyed.
    static QORSettingStore& Of(const QORUnicodeString& iComponent);

    /// Fills oValue and gives QOR_OK, or leaves it alone and gives a negative status when the value was never set.
    QORStatus Get(const QORUnicodeString& iName, int& oValue) const;
    void Set(const QORUnicodeString& iName, int iValue);

    /// Forgets one value, or all of them.
    void Reset(const QORUnicodeString& iName) { _values.erase(iName); }
    void ResetAll() { _values.clear(); }

private:
    std::unordered_map<QORUnicodeString, int> _values;
};
