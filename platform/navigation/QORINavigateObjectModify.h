#pragma once

#include "QORPlatform/framework/QORTie.h"
#include "QORPlatform/framework/QORVar.h"

class QORPathElement;

/// Answered by tree objects that stand for something in the model.
class QORINavigateObjectModify : public QORBaseUnknown {
public:
    static constexpr QORInterfaceID InterfaceID() { return QORInterfaceID("QORINavigateObjectModify"); }

    /// A new path of what a command that was sent to the tree object is to work on, one reference of which is the
    /// caller's. oFlag is 0 when the path names the tree object itself.
    virtual QORPathElement* DecodeSentCommand(unsigned char& oFlag) = 0;
};

inline constexpr QORInterfaceID IID_QORINavigateObjectModify = QORINavigateObjectModify::InterfaceID();
using QORINavigateObjectModify_var = QORVar<QORINavigateObjectModify>;

template <class Impl>
class QORINavigateObjectModifyTie : public QORTie<QORINavigateObjectModify, Impl> {
public:
    using QORTie<QORINavigateObjectModify, Impl>::QORTie;

    QORPathElement* DecodeSentCommand(unsigned char& oFlag) override {
        return this->Target()->DecodeSentCommand(oFlag);
    }
};
