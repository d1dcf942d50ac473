#pragma once

#include "QORPlatform/framework/QORInterfaceID.h"
#include "QORPlatform/text/QORExport.h"

#include <string>
#include <vector>

class QORBaseUnknown;

/// What a class is to the framework.
enum ENUMTypeOfClass {
    Placeholder = 0,    ///< a name that was asked for and isn't defined: a late type, or a class still to come
    Implementation = 1, ///< a plain implementation
    Extension = 2       ///< adds interfaces to objects of another type
};

/// Entry of a class in the dictionary, which is one per process. A class registers by having one as a static object;
/// the entry leaves the dictionary with it, so a library that is unloaded leaves nothing behind.
class QOR_EXPORT QORMetaClass {
public:
    using Creator = QORBaseUnknown* (*)();

    /// iExtended names the type that an extension extends, "QORNull" for none. iCreate is `CreateItself`: it gives a
    /// new object with one reference, or null for a class that can't be created by name.
    QORMetaClass(const char* iName, ENUMTypeOfClass iKind, QORMetaClass* iBase, const char* iExtended,
                 const char* iModule, Creator iCreate);
    ~QORMetaClass();
    QORMetaClass(const QORMetaClass&) = delete;
    QORMetaClass& operator=(const QORMetaClass&) = delete;

    const char* GetName() const { return _name.c_str(); }
    ENUMTypeOfClass GetKind() const { return _kind; }
    QORMetaClass* GetBase() const { return _base; }
    const char* GetModule() const { return _module.c_str(); }

    /// Lets this class, an extension, extend objects of iType too.
    void SetExtensionOf(QORMetaClass* iType);

    /// Names of the types that this class extends, in the order in which they were given.
    const std::vector<std::string>& GetExtendedTypes() const { return _extended; }

    /// Whether this is the named class or derives from it.
    bool IsAKindOf(const char* iClass) const;

    /// A new object of the class with one reference, or null.
    QORBaseUnknown* CreateItself() const { return _create ? _create() : nullptr; }

    /// The root of all base chains, "QORBaseUnknown".
    static QORMetaClass* OfBaseUnknown();

private:
    friend class QORDictionary;

    std::string _name;
    ENUMTypeOfClass _kind;
    QORMetaClass* _base;
    std::string _module;
    Creator _create;
    std::vector<std::string> _extended;
};

/// The meta class of that name; where there is none yet, a placeholder. Never null, owned by the dictionary. A
/// placeholder goes when its name is defined, and when a class or a navigator leaves and nothing extends it: don't keep
/// the pointer, nor its name, ask again.
QOR_EXPORT QORMetaClass* fct_FindMetaObject(const char* iName);
