#pragma once

#include "QORPlatform/framework/QORTie.h"
#include "QORPlatform/framework/QORVar.h"
#include "QORPlatform/text/QORUnicodeString.h"

class QORNavigInstance;

/// Answered by nodes of a tree, by way of an extension of their late type: how a node looks.
class QORINavigModify : public QORBaseUnknown {
public:
    static constexpr QORInterfaceID InterfaceID() { return QORInterfaceID("QORINavigModify"); }

    /// Gives the node its looks. Called when the node is made and whenever it is updated, with the label in place.
    virtual void UpdateElem(QORNavigInstance* iInstance) = 0;

    /// Puts or changes the text that is shown while the pointer rests on the node; empty at first.
    virtual void ModifyShortHelp(QORUnicodeString& ioHelp) = 0;

    /// Selects the node with 1, takes it out of the selection with 0; and whether it is selected, 1 or 0.
    virtual void Select(int iOn) = 0;
    virtual int IsSelected() = 0;
};

inline constexpr QORInterfaceID IID_QORINavigModify = QORINavigModify::InterfaceID();
using QORINavigModify_var = QORVar<QORINavigModify>;

template <class Impl>
class QORINavigModifyTie : public QORTie<QORINavigModify, Impl> {
public:
    using QORTie<QORINavigModify, Impl>::QORTie;

    void UpdateElem(QORNavigInstance* iInstance) override { this->Target()->UpdateElem(iInstance); }
    void ModifyShortHelp(QORUnicodeString& ioHelp) override { this->Target()->ModifyShortHelp(ioHelp); }
    void Select(int iOn) override { this->Target()->Select(iOn); }
    int IsSelected() override { return this->Target()->IsSelected(); }
};
