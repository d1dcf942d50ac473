#pragma once

#include "QORPlatform/visualization/QORPathElement.h"

/// Set of selected objects, in the order in which they were added. What the visualization manager ties to viewpoints,
/// which then show these objects marked. Objects go by their implementation; none is in the set twice.
class QOR_EXPORT QORXSO : public QORBaseUnknown, private QORCounted<QORXSO> {
public:
    static constexpr std::string_view kCountName = "QORXSO";

    QORXSO();
    ~QORXSO() override;

    static QORMetaClass* ClassMeta();
    QORMetaClass* GetMetaObject() const override;

    /// Adds the object that the path names. Negative for a null or empty path and for what is in the set.
    QORStatus AddElement(const QORPathElement* iPath);

    /// Takes the object that the path names out. Negative when it isn't in the set.
    QORStatus RemoveElement(const QORPathElement* iPath);

    void Empty();

    int GetSize() const { return static_cast<int>(_objects.size()); }

    /// The implementation at iPosition, a null handle outside 1 to the size.
    QORBaseUnknown_var GetElement(int iPosition) const;

    bool Contains(QORBaseUnknown* iObject) const;

private:
    std::vector<QORBaseUnknown_var> _objects;
};
