#pragma once

#include "QORPlatform/framework/QORExtensionAdapter.h"
#include "QORPlatform/text/QORUnicodeString.h"

class QORNavigController;
class QORNavigInstance;

/// Base of the extensions of tree nodes: all operations of QORINavigElement and QORINavigModify, with what a node does
/// when nobody says otherwise. An extension derives from this one, replaces what it wants to, and is bound to the late
/// type of its nodes and to the two interfaces in the dictionary.
///
/// On an object that is no node of a tree, or has left it, operations do nothing and give 0 or null.
class QOR_EXPORT QORNodeExtension : public QORExtensionAdapter {
public:
    QORNodeExtension();
    ~QORNodeExtension() override;

    /// After a choice: the node is brought up to date.
    virtual void ProcessAfterSelect();
    virtual void ProcessAfterExtSelect();

    /// After an action: opens the node, or closes it when it is open.
    virtual void ProcessAfterAction();

    /// After opening, or a method of the tree object: the node is brought up to date.
    virtual void ProcessAfterExpand();
    virtual void ProcessAfterMethod();

    /// Tree object of the node above.
    virtual QORBaseUnknown* GetFatherContainer();

    virtual void Update();
    virtual QORNavigController* GetController();
    virtual QORNavigInstance* GetAssociatedInstance();
    virtual void Remove();
    virtual void SetMarked(int iOn);
    virtual int GetMarked();

    /// Looks of a plain node: no icon, kQORNodePlain.
    virtual void UpdateElem(QORNavigInstance* iInstance);

    /// Gives the label where there is no help yet.
    virtual void ModifyShortHelp(QORUnicodeString& ioHelp);

    virtual void Select(int iOn);
    virtual int IsSelected();
};
