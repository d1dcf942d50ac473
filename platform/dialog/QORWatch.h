#pragma once

#include <memory>

/// Base of objects that others may watch without keeping them.
class QORWatchable {
public:
    QORWatchable() = default;
    QORWatchable(const QORWatchable&) = delete;
    QORWatchable& operator=(const QORWatchable&) = delete;

protected:
    ~QORWatchable() = default;

private:
    template <class T>
    friend class QORWatch;

    std::shared_ptr<const bool> _life = std::make_shared<const bool>(true);
};

/// Pointer on an object that it doesn't keep, null from the object's end on.
template <class T>
class QORWatch {
public:
    QORWatch() = default;
    QORWatch(T* iObject) : _object(iObject) {
        if (iObject) {
            _life = static_cast<const QORWatchable*>(iObject)->_life;
        }
    }

    T* Get() const { return _life.expired() ? nullptr : _object; }

private:
    T* _object = nullptr;
    std::weak_ptr<const bool> _life;
};
