#pragma once

#include <cstdint>
#include <string_view>

/// Name of an interface, with its hash at hand so that a comparison rarely reads the text.
class QORInterfaceID {
public:
    /// The text is the caller's and stays as long as the identifier; a null pointer gives the empty name.
    constexpr explicit QORInterfaceID(std::string_view iName) : _name(iName), _hash(HashOf(iName)) {}
    constexpr explicit QORInterfaceID(const char* iName) : QORInterfaceID(std::string_view(iName ? iName : "")) {}

    constexpr std::string_view GetName() const { return _name; }
    constexpr std::uint64_t GetHash() const { return _hash; }

    friend constexpr bool operator==(const QORInterfaceID& iLeft, const QORInterfaceID& iRight) {
        return iLeft._hash == iRight._hash && iLeft._name == iRight._name;
    }

private:
    static constexpr std::uint64_t HashOf(std::string_view iName) {
        std::uint64_t hash = 14695981039346656037ULL;
        for (const char letter : iName) {
            hash = (hash ^ static_cast<unsigned char>(letter)) * 1099511628211ULL;
        }
        return hash;
    }

    std::string_view _name;
    std::uint64_t _hash;
};

/// The identifier of an interface class, hashed when the program is compiled: a call of InterfaceID() may hash anew.
template <class Interface>
inline constexpr QORInterfaceID kQORInterfaceID = Interface::InterfaceID();
