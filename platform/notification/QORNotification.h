#pragma once

#include "QORPlatform/framework/QORBaseUnknown.h"
#include "QORPlatform/framework/QORObjectCounts.h"

/// What is told when something happens. The class name says what kind of thing; derived classes add to it. Whoever made
/// a notification releases it after publishing; subscribers look at it during the call only, or count on it.
class QOR_EXPORT QORNotification : public QORBaseUnknown, private QORCounted<QORNotification> {
public:
    static constexpr std::string_view kCountName = "QORNotification";

    QORNotification();
    ~QORNotification() override;

    /// Meta class "QORNotification", base of those of all notifications.
    static QORMetaClass* ClassMeta();
    QORMetaClass* GetMetaObject() const override;
};
