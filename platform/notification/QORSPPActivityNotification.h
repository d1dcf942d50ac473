#pragma once

#include "QORPlatform/notification/QORNotification.h"

/// Tells of a change in a process plan. The kind is the plan's own number for what has changed.
class QOR_EXPORT QORSPPActivityNotification : public QORNotification {
public:
    explicit QORSPPActivityNotification(int iKind) : _kind(iKind) {}
    ~QORSPPActivityNotification() override;

    static QORMetaClass* ClassMeta();
    QORMetaClass* GetMetaObject() const override;

    int GetNotificationKind() const { return _kind; }

private:
    int _kind;
};
