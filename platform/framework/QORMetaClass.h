#pragma once

#include "QORPlatform/framework/QORInterfaceID.h"
#include "QORPlatform/text/QORExport.h"

#include <initializer_list>
#include <string>
#include <vector>

class QORBaseUnknown;

/// What a class is to the framework.
enum class ENUMTypeOfClass {
    Placeholder = 0,    ///< a name that was asked for and isn't defined: a late type, or a class still to come
    Implementation = 1, ///< a plain implementation
    Extension = 2       ///< adds interfaces to objects of another type
};

/// Entry of a class in the dictionary, which is one per process. A class registers by having one as a static object;
/// the entry leaves the dictionary with it, so a library that is unloaded leaves nothing behind.
class QOR_EXPORT QORMetaClass {
public:
    using Creator = QORBaseUnknown* (*)();

    /// iExtended names the type that an extension extends, "QORNull" or null for none; a null iName or iModule is the
    /// empty text, a null iBase makes a class without a base. iCreate is `CreateItself`: it gives a
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

    /// Lets this class, an extension, extend objects of iType too; null changes nothing.
    void SetExtensionOf(QORMetaClass* iType);

    /// Names of the types that this class extends, in the order in which they were given.
    const std::vector<std::string>& GetExtendedTypes() const { return _extended; }

    /// Whether this is the named class or derives from it; false for null.
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

/// The meta class of that name; where there is none yet, a placeholder. Null for null alone, owned by the dictionary. A
/// placeholder goes when its name is defined, and when a class or a navigator leaves and nothing extends it: don't keep
/// the pointer, nor its name, ask again.
QOR_EXPORT QORMetaClass* fct_FindMetaObject(const char* iName);

/// The library that a class belongs to, by name. One that stays loaded to the end of the process keeps the entries of
/// its classes, since objects may still be asked for their class while the process ends.
struct QORModule {
    constexpr QORModule(const char* iName, bool iStays = false) : name(iName), stays(iStays) {}

    const char* name;
    bool stays;
};

inline constexpr QORModule kQORPlatform{"QORPlatform", true};

/// Owner of the meta class that QORRegisterClass makes.
class QOR_EXPORT QORClassEntry {
public:
    QORClassEntry(const char* iName, const QORModule& iModule, QORMetaClass* iBase, QORMetaClass::Creator iCreate,
                  std::initializer_list<const char*> iExtended);

    /// Takes the class out of the dictionary, unless its library stays.
    ~QORClassEntry();
    QORClassEntry(const QORClassEntry&) = delete;
    QORClassEntry& operator=(const QORClassEntry&) = delete;

    QORMetaClass* GetMeta() const { return _meta; }

private:
    QORMetaClass* _meta;
    bool _stays;
};

/// Asks T for its meta class when the library of T loads.
template <class T>
inline const QORMetaClass* const kQORRegisteredAtLoad = T::ClassMeta();

/// The registration of class T, written once, in T::ClassMeta:
///
///     QORMetaClass* Door::ClassMeta() { return QORRegisterClass<Door>("Door", "Doors", &Opening::ClassMeta); }
///
/// gives the meta class, which is made at the first call or when the library loads, and goes with the library. iBase
/// gives the meta class of the base, iCreate is as in QORMetaClass; a class that extends types is an extension.
template <class T>
QORMetaClass*
QORRegisterClass(const char* iName, const QORModule& iModule, QORMetaClass* (*iBase)() = &QORMetaClass::OfBaseUnknown,
                 QORMetaClass::Creator iCreate = nullptr, std::initializer_list<const char*> iExtended = {}) {
    static_cast<void>(&kQORRegisteredAtLoad<T>);
    static const QORClassEntry entry(iName, iModule, iBase(), iCreate, iExtended);
    return entry.GetMeta();
}
