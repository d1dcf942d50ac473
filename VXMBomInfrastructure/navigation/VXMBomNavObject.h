#pragma once

#include "QORPlatform/collections/QORListValQORBaseUnknown_var.h"
#include "QORPlatform/collections/QORListValQORUnicodeString.h"
#include "QORPlatform/framework/QORObjectCounts.h"
#include "VXMBomInfrastructure/VXMExport.h"
#include "VXMBomInfrastructure/model/QORISPPActivity.h"

#include <memory>

class DOM_Element;
class QORPathElement;
struct VXMBomNavObjectState;

/// Tree object of a BOM, of class "VXMBomNavObject": each stands for an element of the document and takes its label and
/// its children from there. It knows nothing but the element, and with it holds the whole document: what shows an older
/// bill keeps that bill. Answers QORINavigateObject, QORINavigateObjectPPR and QORINavigateObjectModify.
class VXM_EXPORT VXMBomNavObject : public QORBaseUnknown, private QORCounted<VXMBomNavObject> {
public:
    static constexpr std::string_view kCountName = "VXMBomNavObject";

    /// Has the bill of iActivity's process computed, and stands for the top of it.
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

    std::unique_ptr<const VXMBomNavObjectState> _state;
};
