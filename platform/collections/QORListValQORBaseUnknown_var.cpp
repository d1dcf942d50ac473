#include "QORPlatform/collections/QORListValQORBaseUnknown_var.h"

#include <algorithm>

using List = QORListValQORBaseUnknown_var;

List::QORListValQORBaseUnknown_var() = default;
List::QORListValQORBaseUnknown_var(const QORListValQORBaseUnknown_var& iOther) = default;
List::QORListValQORBaseUnknown_var(QORListValQORBaseUnknown_var&& iOther) noexcept
    : _handles(std::move(iOther._handles)) {}
List& List::operator=(const QORListValQORBaseUnknown_var& iOther) = default;
List& List::operator=(QORListValQORBaseUnknown_var&& iOther) noexcept {
    _handles = std::move(iOther._handles);
    return *this;
}
List::~QORListValQORBaseUnknown_var() = default;

const QORBaseUnknown_var& List::operator[](int iPosition) const {
    static const QORBaseUnknown_var none;
    return iPosition >= 1 && iPosition <= Size() ? _handles[static_cast<std::size_t>(iPosition) - 1] : none;
}

void List::Append(QORBaseUnknown_var iHandle) {
    _handles.push_back(std::move(iHandle));
}

int List::Locate(const QORBaseUnknown_var& iHandle, int iFrom) const {
    const auto* const begin = _handles.begin() + std::clamp(iFrom - 1, 0, Size());
    const auto* const place = std::find(begin, _handles.end(), iHandle);
    return place == _handles.end() ? 0 : static_cast<int>(place - _handles.begin()) + 1;
}

int List::RemoveValue(const QORBaseUnknown_var& iHandle) {
    const int position = Locate(iHandle);
    RemovePosition(position);
    return position;
}

void List::RemovePosition(int iPosition) {
    if (iPosition >= 1 && iPosition <= Size()) {
        _handles.erase(_handles.begin() + (iPosition - 1));
    }
}

void List::RemoveAll() {
    _handles.clear();
}
