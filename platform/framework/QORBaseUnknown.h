#pragma once

#include "QORPlatform/framework/QORInterfaceID.h"
#include "QORPlatform/framework/QORStatus.h"
#include "QORPlatform/text/QORExport.h"

class QORMetaClass;
class QORObjectParts;

/// Root class of the object framework: a counted object that answers interfaces.
///
/// Objects are made with `new`, which gives one reference, and end with the last Release. An interface is an abstract
/// class that derives from this one; an object answers it through a forwarder (see QORTie), never by inheriting it.
/// An object may also stand on the stack or inside another one as long as nobody releases more than was counted.
/// All of this belongs to the thread of the dialog loop; counts aren't atomic.
class QOR_EXPORT QORBaseUnknown {
public:
    QORBaseUnknown();
    virtual ~QORBaseUnknown();
    QORBaseUnknown(const QORBaseUnknown&) = delete;
    QORBaseUnknown& operator=(const QORBaseUnknown&) = delete;

    /// Counts one reference more, or one less; the object ends with its last one. Both give the new count.
    virtual int AddRef();
    virtual int Release();

    /// Casts. On success *oInterface is the interface pointer, with a reference for the caller, and the result is
    /// QOR_OK; otherwise *oInterface is null and the result negative, as it is for a null oInterface. The base answers
    /// what the dictionary binds to the object's class, its bases, and the extensions of either; forwarders are made
    /// once and found again.
    virtual QORStatus QueryInterface(const QORInterfaceID& iInterface, void** oInterface);

    /// With 0 the implementation behind this pointer: the object itself, the one that a forwarder stands for, the one
    /// that an extension extends. No reference passes to the caller. Identity goes by this pointer alone.
    virtual QORBaseUnknown* GetImpl(int iLevel);

    /// Meta class of the object, its late type where it has one.
    virtual QORMetaClass* GetMetaObject() const;

    /// Name of the object's class or late type. Not to be kept: it goes with the entry in the dictionary.
    const char* IsA() const;

    /// 1 when the object is of the named class, or of one that derives from it, else 0; 0 for null.
    virtual int IsAKindOf(const char* iClass) const;

    /// Number of references that are held at present.
    int GetReferenceCount() const { return _references; }

    /// Identity number of this implementation, the same for its whole life. Use QORModelIdentificator.
    int GetIdentity();

protected:
    /// Gives the object a number of its own, 1 to 2^30 - 1, before anybody has asked for it. Numbers that are handed
    /// out on first demand start at 2^30.
    void SetIdentity(int iIdentity) { _identity = iIdentity; }

    /// Turns this object into a forwarder for iImplementation, on which it counts from then on.
    void SetForwarded(QORBaseUnknown* iImplementation);
    QORBaseUnknown* GetForwarded() const { return _link.forwarded; }

private:
    QORStatus FindPart(const QORInterfaceID& iInterface, void** oInterface);

    int _references = 1;
    int _identity = 0;
    union {
        QORObjectParts* parts;     // of an implementation: what the dictionary made for it
        QORBaseUnknown* forwarded; // of a forwarder: its implementation
    } _link{nullptr};
};
