#pragma once

#include "QORPlatform/collections/QORFew.h"
#include "QORPlatform/framework/QORObjectCounts.h"
#include "QORPlatform/framework/QORVar.h"

#include <string_view>

/// List of counted handles, positions from 1. Who gets a list by pointer owns it:
/// put it into a std::unique_ptr in the expression that receives it.
class QOR_EXPORT QORListValQORBaseUnknown_var : private QORCounted<QORListValQORBaseUnknown_var> {
public:
    static constexpr std::string_view kCountName = "QORListValQORBaseUnknown_var";

    QORListValQORBaseUnknown_var();
    QORListValQORBaseUnknown_var(const QORListValQORBaseUnknown_var& iOther);
    QORListValQORBaseUnknown_var(QORListValQORBaseUnknown_var&& iOther) noexcept;
    QORListValQORBaseUnknown_var& operator=(const QORListValQORBaseUnknown_var& iOther);
    QORListValQORBaseUnknown_var& operator=(QORListValQORBaseUnknown_var&& iOther) noexcept;
    ~QORListValQORBaseUnknown_var();

    int Size() const { return static_cast<int>(_handles.size()); }

    /// The handle at iPosition, a null handle outside 1 to the size. The reference holds until the list changes.
    const QORBaseUnknown_var& operator[](int iPosition) const;

    void Append(QORBaseUnknown_var iHandle);

    /// First position from iFrom on whose object is that of iHandle; 0 when there is none.
    int Locate(const QORBaseUnknown_var& iHandle, int iFrom = 1) const;

    /// Removes the first entry of that object and gives the position that it had, 0 when there is none.
    int RemoveValue(const QORBaseUnknown_var& iHandle);
    void RemovePosition(int iPosition);
    void RemoveAll();

    auto begin() const { return _handles.begin(); }
    auto end() const { return _handles.end(); }

private:
    friend class QORCounted<QORListValQORBaseUnknown_var>;

    QORFew<QORBaseUnknown_var> _handles; // most lists of a plan have one entry
};
