#pragma once

#include "QORPlatform/framework/QORTie.h"
#include "QORPlatform/framework/QORVar.h"

class QORNavigController;
class QORNavigInstance;

/// Answered by nodes of a tree, by way of an extension of their late type: what follows what a person does, and where
/// the node stands.
class QORINavigElement : public QORBaseUnknown {
public:
    static constexpr QORInterfaceID InterfaceID() { return QORInterfaceID("QORINavigElement"); }

    /// Called after a person has selected the node alone, or added it to the selection.
    virtual void ProcessAfterSelect() = 0;
    virtual void ProcessAfterExtSelect() = 0;

    /// Called after a person has acted on the node (a double click), or opened it.
    virtual void ProcessAfterAction() = 0;
    virtual void ProcessAfterExpand() = 0;

    /// For whoever has run a method of the tree object: the node may have to follow.
    virtual void ProcessAfterMethod() = 0;

    /// Tree object of the node above, null for a root and for what is in no tree. No reference passes to the caller.
    virtual QORBaseUnknown* GetFatherContainer() = 0;

    /// Brings the node up to date.
    virtual void Update() = 0;

    /// Settings of the tree, and the node's place in it; null for what is in no tree.
    virtual QORNavigController* GetController() = 0;
    virtual QORNavigInstance* GetAssociatedInstance() = 0;

    /// Takes the node out of the tree, with all that is below it. The model stays as it is.
    virtual void Remove() = 0;

    /// Marks the node with 1, takes the mark off with 0; and whether it is marked, 1 or 0.
    virtual void SetMarked(int iOn) = 0;
    virtual int GetMarked() = 0;
};

inline constexpr QORInterfaceID IID_QORINavigElement = QORINavigElement::InterfaceID();
using QORINavigElement_var = QORVar<QORINavigElement>;

template <class Impl>
class QORINavigElementTie : public QORTie<QORINavigElement, Impl> {
public:
    using QORTie<QORINavigElement, Impl>::QORTie;

    void ProcessAfterSelect() override { this->Target()->ProcessAfterSelect(); }
    void ProcessAfterExtSelect() override { this->Target()->ProcessAfterExtSelect(); }
    void ProcessAfterAction() override { this->Target()->ProcessAfterAction(); }
    void ProcessAfterExpand() override { this->Target()->ProcessAfterExpand(); }
    void ProcessAfterMethod() override { this->Target()->ProcessAfterMethod(); }
    QORBaseUnknown* GetFatherContainer() override { return this->Target()->GetFatherContainer(); }
    void Update() override { this->Target()->Update(); }
    QORNavigController* GetController() override { return this->Target()->GetController(); }
    QORNavigInstance* GetAssociatedInstance() override { return this->Target()->GetAssociatedInstance(); }
    void Remove() override { this->Target()->Remove(); }
    void SetMarked(int iOn) override { this->Target()->SetMarked(iOn); }
    int GetMarked() override { return this->Target()->GetMarked(); }
};
