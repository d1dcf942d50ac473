#include "QORPlatform/framework/QORDictionary.h"

#include <algorithm>

QORDictionary& QORDictionary::Get() {
    // Never destroyed: static objects of libraries sign off at the very end of the process.
    static auto* const dictionary = new QORDictionary();
    return *dictionary;
}

void QORDictionary::Register(QORMetaClass& iClass) {
    ++_change;
    _classes[iClass.GetName()] = &iClass;
    const auto place = _placeholders.find(iClass.GetName());
    if (place == _placeholders.end()) {
        return;
    }
    for (const auto& [name, entry] : _classes) {
        if (entry->_base == place->second.get()) {
            entry->_base = &iClass;
        }
    }
    _placeholders.erase(place);
}

void QORDictionary::Unregister(const QORMetaClass& iClass) {
    ++_change;
    const auto place = _classes.find(iClass.GetName());
    if (place != _classes.end() && place->second == &iClass) {
        _classes.erase(place);
    }
    for (const std::string& type : iClass.GetExtendedTypes()) {
        std::erase(_extensions[type], &iClass);
        if (_extensions[type].empty()) {
            _extensions.erase(type);
        }
    }
    DropUnusedPlaceholders();
}

void QORDictionary::AddExtension(const std::string& iType, QORMetaClass& iExtension) {
    ++_change;
    _extensions[iType].push_back(&iExtension);
}

QORMetaClass* QORDictionary::FindClass(const std::string& iName) const {
    const auto defined = _classes.find(iName);
    if (defined != _classes.end()) {
        return defined->second;
    }
    const auto placed = _placeholders.find(iName);
    return placed == _placeholders.end() ? nullptr : placed->second.get();
}

QORMetaClass* QORDictionary::FindOrPlace(const std::string& iName) {
    if (QORMetaClass* known = FindClass(iName)) {
        return known;
    }
    ++_change;
    auto& placed = _placeholders[iName];
    placed = std::make_unique<QORMetaClass>(iName.c_str(), ENUMTypeOfClass::Placeholder, QORMetaClass::OfBaseUnknown(),
                                            "QORNull", "", nullptr);
    return placed.get();
}

bool QORDictionary::IsBase(const QORMetaClass& iClass) const {
    return std::any_of(_classes.begin(), _classes.end(),
                       [&](const auto& iEntry) { return iEntry.second->_base == &iClass; });
}

void QORDictionary::DropUnusedPlaceholders() {
    ++_change;
    std::erase_if(_placeholders,
                  [this](const auto& iPlaced) { return !KnowsBindingsOf(iPlaced.first) && !IsBase(*iPlaced.second); });
}

void QORDictionary::Bind(const std::string& iClass, const QORInterfaceID& iInterface, QORForwarderFactory iFactory) {
    ++_change;
    _bindings[iClass].push_back({iInterface, iFactory});
}

void QORDictionary::Unbind(const std::string& iClass, const QORInterfaceID& iInterface, QORForwarderFactory iFactory) {
    ++_change;
    const auto place = _bindings.find(iClass);
    if (place == _bindings.end()) {
        return;
    }
    const auto bound = std::find_if(place->second.begin(), place->second.end(), [&](const Binding& iBinding) {
        return iBinding.interface == iInterface && iBinding.factory == iFactory;
    });
    if (bound != place->second.end()) {
        place->second.erase(bound);
    }
    if (place->second.empty()) {
        _bindings.erase(place);
    }
}

QORForwarderFactory QORDictionary::FindFactory(const std::string& iClass, const QORInterfaceID& iInterface) const {
    const auto place = _bindings.find(iClass);
    if (place == _bindings.end()) {
        return nullptr;
    }
    const auto found = std::find_if(place->second.begin(), place->second.end(),
                                    [&](const Binding& iBinding) { return iBinding.interface == iInterface; });
    return found == place->second.end() ? nullptr : found->factory;
}

const std::vector<QORMetaClass*>& QORDictionary::FindExtensions(const std::string& iType) const {
    static const std::vector<QORMetaClass*> none;
    const auto place = _extensions.find(iType);
    return place == _extensions.end() ? none : place->second;
}

bool QORDictionary::KnowsBindingsOf(const std::string& iClass) const {
    return _bindings.contains(iClass) || _extensions.contains(iClass);
}

std::vector<std::string> QORDictionary::Report() const {
    std::vector<std::string> lines;
    for (const auto& [name, entry] : _classes) {
        lines.push_back("class " + name);
    }
    for (const auto& [name, entry] : _placeholders) {
        lines.push_back("class " + name);
    }
    for (const auto& [name, bindings] : _bindings) {
        for (const Binding& binding : bindings) {
            lines.push_back("bound " + name + " " + std::string(binding.interface.GetName()));
        }
    }
    for (const auto& [type, extensions] : _extensions) {
        for (const QORMetaClass* extension : extensions) {
            lines.push_back("extended " + type + " " + extension->GetName());
        }
    }
    std::sort(lines.begin(), lines.end());
    return lines;
}

QORFillDictionary::QORFillDictionary(const char* iClass, const QORInterfaceID& iInterface, QORForwarderFactory iFactory)
    : _class(iClass ? iClass : ""), _interface(iInterface), _factory(iFactory) {
    if (iClass && iFactory) {
        QORDictionary::Get().Bind(_class, _interface, _factory);
    }
}

QORFillDictionary::~QORFillDictionary() {
    QORDictionary::Get().Unbind(_class, _interface, _factory);
}
