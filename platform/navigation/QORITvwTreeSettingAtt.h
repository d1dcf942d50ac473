#pragma once

#include "QORPlatform/framework/QORTie.h"
#include "QORPlatform/framework/QORVar.h"

/// Values of the tree flag.
inline constexpr unsigned char kQORTreePlain = 0;
inline constexpr unsigned char kQORTreeLines = 1; ///< lines between nodes

/// Answered by the component of the tree settings.
class QORITvwTreeSettingAtt : public QORBaseUnknown {
public:
    static constexpr QORInterfaceID InterfaceID() { return QORInterfaceID("QORITvwTreeSettingAtt"); }

    /// How trees are painted, one of the values above. Negative when the setting can't be changed.
    virtual QORStatus SetTreeFlag(unsigned char iFlag) = 0;

    /// Fills oFlag, kQORTreePlain when nobody has set it.
    virtual QORStatus GetTreeFlag(unsigned char& oFlag) = 0;
};

inline constexpr QORInterfaceID IID_QORITvwTreeSettingAtt = QORITvwTreeSettingAtt::InterfaceID();
using QORITvwTreeSettingAtt_var = QORVar<QORITvwTreeSettingAtt>;

template <class Impl>
class QORITvwTreeSettingAttTie : public QORTie<QORITvwTreeSettingAtt, Impl> {
public:
    using QORTie<QORITvwTreeSettingAtt, Impl>::QORTie;

    QORStatus SetTreeFlag(unsigned char iFlag) override { return this->Target()->SetTreeFlag(iFlag); }
    QORStatus GetTreeFlag(unsigned char& oFlag) override { return this->Target()->GetTreeFlag(oFlag); }
};
