#pragma once

#include "QORPlatform/framework/QORMetaClass.h"
#include "QORPlatform/settings/QORSettingStore.h"

#include <memory>

namespace planner {

/// Keeps the component of the fastener settings registered; there may be several at a time. What the component answers
/// is what the store holds: 1 is on, any other value off, and a value that was never set leaves the asker's own
/// default.
class FastenerSettings {
public:
    FastenerSettings();

    /// The values that the component answers from.
    static QORSettingStore& store();

private:
    std::shared_ptr<QORMetaClass> class_;
};

} // namespace planner
