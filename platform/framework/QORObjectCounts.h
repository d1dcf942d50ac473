#pragma once

#include "QORPlatform/text/QORExport.h"

#include <map>
#include <string>
#include <string_view>

/// Number of living objects of one class. Takes part in the report for as long as it exists, so a library that
/// leaves the process takes its numbers along.
class QOR_EXPORT QORObjectCount {
public:
    explicit QORObjectCount(std::string_view iClass);
    ~QORObjectCount();
    QORObjectCount(const QORObjectCount&) = delete;
    QORObjectCount& operator=(const QORObjectCount&) = delete;

    void Enter() { ++_living; }
    void Leave() { --_living; }
    long GetLiving() const { return _living; }
    std::string_view GetClass() const { return _class; }

private:
    std::string_view _class;
    long _living = 0;
};

/// Living objects of each class that has any: what must be as before once a piece of work is over.
/// Meta classes and traces live with their library and aren't counted.
QOR_EXPORT std::map<std::string, long> QORLivingObjects();

/// Empty base that counts the objects of class T; T gives its name as `static constexpr std::string_view kCountName`.
template <class T>
class QORCounted {
protected:
    QORCounted() { Count().Enter(); }
    QORCounted(const QORCounted&) : QORCounted() {}
    QORCounted& operator=(const QORCounted&) = default;
    ~QORCounted() { Count().Leave(); }

private:
    static QORObjectCount& Count() {
        static QORObjectCount count(T::kCountName);
        return count;
    }
};
