#pragma once

#include "QORPlatform/collections/QORListValQORBaseUnknown_var.h"
#include "QORPlatform/dom/DOM_Document.h"
#include "QORPlatform/navigation/QORNavigRows.h"

/// The rows of a bill's tree: a row for each element of the document, with the object behind it.
///
/// Nothing in the document ties an element to an object, but the list of objects has them in the order in which the
/// elements end, so that counting does. Row numbers count the elements in the order in which they begin. The tables are
/// made when the first row is asked for, in proportion to the document; then each answer is a look-up.
class VXMBomRows final : public QORNavigRows {
public:
    /// iObjects: that of each element but the top one, an element's descendants before itself.
    VXMBomRows(const DOM_Document& iDocument, const QORListValQORBaseUnknown_var& iObjects)
        : _document(iDocument), _objects(iObjects) {}

    Row GetRoot(int iPosition) override;
    Row GetChild(Row iParent, int iPosition) override;
    Row GetParent(Row iRow) override;
    int GetPosition(Row iRow) override;
    QORBaseUnknown_var GetObject(Row iRow) override;
    int GetPlace(Row iRow) override;
    Row FindChild(Row iParent, QORBaseUnknown* iObject, int iPlace) override;
    std::vector<Row> FindRows(QORBaseUnknown* iObject) override;

private:
    using Rows = std::vector<Row>;

    void Read();
    void Enter(Row iParent);
    void ListChildren();
    void SortByObject();
    bool Has(Row iRow);
    Rows::const_iterator FirstAtOrAfter(const QORBaseUnknown* iObject, Row iParent, Row iRow = 0) const;

    DOM_Document _document;
    QORListValQORBaseUnknown_var _objects;

    // By row.
    Rows _parents;
    std::vector<int> _positions;
    std::vector<QORBaseUnknown*> _behind;

    Rows _children;          // of all rows, those of one side by side
    std::vector<int> _first; // by row: its first child there
    Rows _byObject;          // rows by object, then by parent, then as they come
};
