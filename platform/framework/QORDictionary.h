#pragma once

#include "QORPlatform/framework/QORMetaClass.h"

#include <map>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

/// Makes the forwarder of one interface for an implementation; the result counts on the implementation.
using QORForwarderFactory = QORBaseUnknown* (*)(QORBaseUnknown* iImplementation);

/// The one dictionary of classes and of the interfaces bound to them, by name.
class QOR_EXPORT QORDictionary {
public:
    static QORDictionary& Get();

    /// Enters the class; it takes the place of a placeholder of its name, also as the base of others.
    void Register(QORMetaClass& iClass);

    /// Takes the class out with the extensions that it makes; nothing happens to another class of its name.
    void Unregister(const QORMetaClass& iClass);

    /// Enters iExtension behind the other extensions of iType.
    void AddExtension(const std::string& iType, QORMetaClass& iExtension);

    /// The class or placeholder of that name, or null; FindOrPlace makes a placeholder then.
    QORMetaClass* FindClass(const std::string& iName) const;
    QORMetaClass* FindOrPlace(const std::string& iName);

    /// Drops the placeholders of names that nothing is bound to, nothing extends and no class derives from.
    void DropUnusedPlaceholders();

    /// Enter what makes the forwarder of an interface for a class, and take one such entry back; the factory that was
    /// entered first answers. No factory is null.
    void Bind(const std::string& iClass, const QORInterfaceID& iInterface, QORForwarderFactory iFactory);
    void Unbind(const std::string& iClass, const QORInterfaceID& iInterface, QORForwarderFactory iFactory);

    /// Factory for the interface on that very class, or null.
    QORForwarderFactory FindFactory(const std::string& iClass, const QORInterfaceID& iInterface) const;

    /// The extensions of that very type, in the order in which they came.
    const std::vector<QORMetaClass*>& FindExtensions(const std::string& iType) const;

    /// Whether any interface is bound to that class, or any extension made for it.
    bool KnowsBindingsOf(const std::string& iClass) const;

    /// A number that is another one after each change of what is entered.
    unsigned long GetChange() const { return _change; }

    /// Everything that is entered at present, a line each ("class X", "bound X Y", "extended X Y"), sorted: what a
    /// library has added, and that it took everything along.
    std::vector<std::string> Report() const;

private:
    struct Binding {
        QORInterfaceID interface;
        QORForwarderFactory factory;
    };

    QORDictionary() = default;
    bool IsBase(const QORMetaClass& iClass) const;

    std::unordered_map<std::string, QORMetaClass*> _classes;
    std::unordered_map<std::string, std::unique_ptr<QORMetaClass>> _placeholders;
    std::unordered_map<std::string, std::vector<QORMetaClass*>> _extensions;
    std::unordered_map<std::string, std::vector<Binding>> _bindings;
    unsigned long _change = 1;
};

/// Binds an interface to a class for as long as this object lives: a static object in the library of the class. A null
/// class or factory binds nothing.
class QOR_EXPORT QORFillDictionary {
public:
    QORFillDictionary(const char* iClass, const QORInterfaceID& iInterface, QORForwarderFactory iFactory);
    ~QORFillDictionary();
    QORFillDictionary(const QORFillDictionary&) = delete;
    QORFillDictionary& operator=(const QORFillDictionary&) = delete;

private:
    std::string _class;
    QORInterfaceID _interface;
    QORForwarderFactory _factory;
};
