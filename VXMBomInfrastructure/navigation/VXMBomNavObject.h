#pragma once

#include "VXMExport.h"
#include "collections/QORListValQORBaseUnknown_var.h"
#include "collections/QORListValQORUnicodeString.h"
#include "dom/DOM_Element.h"
#include "framework/QORObjectCounts.h"
#include "model/QORISPPActivity.h"

class QORPathElement;

/// What the tree navigator sees of a BOM: one object stands for one element of the document, and answers label and
/// children from it. It holds nothing else, and keeps its document alive: objects of an earlier document go on reading
/// that one. Answers QORINavigateObject, QORINavigateObjectPPR and QORINavigateObjectModify.
class VXM_EXPORT VXMBomNavObject : public QORBaseUnknown, private QORCounted<VXMBomNavObject> {
public:
    static constexpr std::string_view kCountName = "VXMBomNavObject";

    /// Builds the BOM of the process under iActivity and stands for its document element.
    explicit VXMBomNavObject(const QORISPPActivity_var& iActivity);

    /// Stands for iElement.
    explicit VXMBomNavObject(DOM_Element& iElement);
    ~VXMBomNavObject() override;

    static QORMetaClass* ClassMeta();
    QORMetaClass* GetMetaObject() const override;

    /// A new list with the one label: "Bom" for an element "BOM", else the element's name. The caller deletes it.
    virtual QORListValQORUnicodeString* GetIdentificators();

    /// A new list with a new object for each child element in document order, which the caller deletes; the list holds
    /// the only reference on each. Empty without children, never null.
    virtual QORListValQORBaseUnknown_var* GetChildren();

    /// A new path that names this object, with the caller's one reference. Sets oFlag to 0.
    QORPathElement* DecodeSentCommand(unsigned char& oFlag);

private:
    friend class QORCounted<VXMBomNavObject>;

    DOM_Element _element;
};
