#pragma once

#include "QORPlatform/framework/QORMetaClass.h"
#include "QORPlatform/settings/QORSettingStore.h"

namespace planner {

/// Registers the component of the fastener settings for as long as it lives. What the component answers is what the
/// store holds: 1 is on, any other value off, and a value that was never set leaves the asker's own default.
class FastenerSettings {
public:
    FastenerSettings();

    /// The values that the component answers from.
    static QORSettingStore& store();

private:
    QORMetaClass class_;
};

} // namespace planner
