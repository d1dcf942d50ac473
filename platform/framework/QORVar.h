#pragma once

#include "QORPlatform/framework/QORBaseUnknown.h"
#include "QORPlatform/framework/QORNullVarError.h"

#include <cstddef>
#include <string_view>
#include <type_traits>
#include <utility>

/// Counted handle on an object through one interface; `QORISPPItem_var` is `QORVar<QORISPPItem>`.
///
/// Making one from a pointer or handle of another interface casts, and an object that doesn't answer gives a null
/// handle: test it, it is no error. A call through a null handle raises QORNullVarError. Handles are equal when the
/// objects behind them are one, whatever interface each goes through.
template <class T>
class QORVar {
public:
    QORVar() = default;
    QORVar(std::nullptr_t) {}

    /// Counts a reference of its own; the caller keeps his.
    QORVar(T* iObject) : _object(iObject) { Count(); }
    QORVar(const QORVar& iOther) : _object(iOther._object) { Count(); }
    QORVar(QORVar&& iOther) noexcept : _object(std::exchange(iOther._object, nullptr)) {}

    template <class U, class = std::enable_if_t<!std::is_same_v<T, U>, decltype(std::declval<U&>().AddRef())>>
    QORVar(U* iObject) : _object(Cast(iObject)) {}
    template <class U>
    QORVar(const QORVar<U>& iOther) : _object(Cast(iOther.Get())) {}

    ~QORVar() { Drop(); }

    QORVar& operator=(const QORVar& iOther) {
        QORVar(iOther).Swap(*this);
        return *this;
    }
    QORVar& operator=(QORVar&& iOther) noexcept {
        QORVar(std::move(iOther)).Swap(*this);
        return *this;
    }

    /// Takes over a reference that the caller owns: a new object, or what a cast or getter counted for him.
    static QORVar Adopt(T* iObject) {
        QORVar handle;
        handle._object = iObject;
        return handle;
    }

    T* Get() const { return _object; }
    T* operator->() const {
        if (!_object) {
            RaiseNull();
        }
        return _object;
    }
    explicit operator bool() const { return _object != nullptr; }

    /// The implementation behind the handle, null for a null handle.
    QORBaseUnknown* Impl() const { return _object ? _object->GetImpl(0) : nullptr; }

    void Swap(QORVar& ioOther) noexcept { std::swap(_object, ioOther._object); }

private:
    template <class U>
    static T* Cast(U* iObject) {
        if (!iObject) {
            return nullptr;
        }
        if constexpr (std::is_convertible_v<U*, T*>) {
            iObject->AddRef();
            return iObject;
        } else {
            void* found = nullptr;
            return iObject->QueryInterface(kQORInterfaceID<T>, &found) < 0 ? nullptr : static_cast<T*>(found);
        }
    }

    template <class U>
    static auto NameOf(int) -> decltype(U::InterfaceID().GetName()) {
        return U::InterfaceID().GetName();
    }
    template <class U>
    static std::string_view NameOf(long) {
        return "QORBaseUnknown";
    }
    [[noreturn]] static void RaiseNull() { ThrowErrorNullVar(NameOf<T>(0)); }

    void Count() {
        if (_object) {
            _object->AddRef();
        }
    }
    void Drop() {
        if (_object) {
            _object->Release();
        }
    }

    T* _object = nullptr;
};

template <class T, class U>
bool operator==(const QORVar<T>& iLeft, const QORVar<U>& iRight) {
    return iLeft.Impl() == iRight.Impl();
}
template <class T>
bool operator==(const QORVar<T>& iHandle, std::nullptr_t) {
    return !iHandle;
}

using QORBaseUnknown_var = QORVar<QORBaseUnknown>;
