#pragma once

#include "QORPlatform/framework/QORVar.h"

#include <vector>

/// Knows all rows that a tree box has or might have, opened or not, and what object of the model stands behind each:
/// for a box whose tree objects are made anew whenever it is filled. Rows have numbers, which hold until the box is
/// filled anew; positions count from 1, in the list of children that the tree object above gives.
///
/// What a row is can be said beyond that time: by the objects on the way from its root to it, and its place among the
/// siblings that have the same object.
class QORNavigRows {
public:
    using Row = long;
    static constexpr Row kNone = -1; ///< no such row

    virtual ~QORNavigRows() = default;

    virtual Row GetRoot(int iPosition) = 0;
    virtual Row GetChild(Row iParent, int iPosition) = 0;

    /// The row above, kNone for a root, and the position below it.
    virtual Row GetParent(Row iRow) = 0;
    virtual int GetPosition(Row iRow) = 0;

    /// The implementation of the object behind a row; a null handle where there is none.
    virtual QORBaseUnknown_var GetObject(Row iRow) = 0;

    /// The place of a row among the siblings with the same object, from 1, and the row of an object and place.
    virtual int GetPlace(Row iRow) = 0;
    virtual Row FindChild(Row iParent, QORBaseUnknown* iObject, int iPlace) = 0;

    /// All rows with that object behind them, from the top of the tree to its end.
    virtual std::vector<Row> FindRows(QORBaseUnknown* iObject) = 0;
};
