#pragma once

#include "QORPlatform/notification/QOREventSubscriber.h"
#include "QORPlatform/visualization/QORPathElement.h"

#include <unordered_map>

/// Set of selected objects, in the order in which they were added. What the visualization manager ties to viewpoints,
/// which then show these objects marked. Objects go by their implementation; none is in the set twice. The set
/// publishes the event CHANGED whenever its content is another; each operation costs in proportion to what it is given,
/// and is told once.
class QOR_EXPORT QORXSO : public QOREventSubscriber, private QORCounted<QORXSO> {
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

    /// Adds those of the objects that aren't in the set; or makes them the whole content. Null is left out.
    void AddElements(const std::vector<QORBaseUnknown*>& iObjects);
    void SetContent(const std::vector<QORBaseUnknown*>& iObjects);

    void Empty() { SetContent({}); }

    int GetSize() const { return static_cast<int>(_places.size()); }

    /// Name of the event, published with no notification.
    static const char* CHANGED() { return "QORXSOChanged"; }

    /// The implementation at iPosition, a null handle outside 1 to the size.
    QORBaseUnknown_var GetElement(int iPosition) const;

    bool Contains(QORBaseUnknown* iObject) const;

private:
    bool Append(QORBaseUnknown* iObject);
    void CloseGaps() const;
    void TellChange();

    mutable std::vector<QORBaseUnknown_var> _objects; // null where an object was taken out
    mutable std::unordered_map<const QORBaseUnknown*, std::size_t> _places;
};
