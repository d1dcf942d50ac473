// What the navigator's component and interfaces answer apart from any tree.

#include "framework/QORMetaClass.h"
#include "framework/QORVar.h"
#include "navigation/QORINavigateObjectModify.h"
#include "navigation/QORNodeExtension.h"
#include "navigation/QORTvwTreeSettingCtrl.h"
#include "visualization/QORPathElement.h"

#include <gtest/gtest.h>

namespace {

class TreeSettings : public testing::Test {
protected:
    TreeSettings() { QORTvwTreeSettingCtrl().SetTreeFlag(kQORTreePlain); }
    ~TreeSettings() override { QORUseTvwTreeSettingCtrl(nullptr); }
};

TEST_F(TreeSettings, AreSharedByAllWhoAsk) {
    for (const unsigned char flag : {kQORTreeLines, kQORTreePlain}) {
        void* asked = nullptr;
        ASSERT_EQ(GetQORTvwTreeSettingCtrl(IID_QORITvwTreeSettingAtt, &asked), QOR_OK);
        auto* const settings = static_cast<QORITvwTreeSettingAtt*>(asked);
        EXPECT_EQ(settings->SetTreeFlag(flag), QOR_OK);
        EXPECT_EQ(settings->Release(), 0) << "the one reference is the caller's";
        unsigned char read = 9;
        EXPECT_EQ(QORTvwTreeSettingCtrl().GetTreeFlag(read), QOR_OK);
        EXPECT_EQ(read, flag);
    }
}

TEST_F(TreeSettings, AreRefusedForAnotherInterfaceOrWithoutComponent) {
    void* asked = this;
    EXPECT_LT(GetQORTvwTreeSettingCtrl(IID_QORINavigateObjectModify, &asked), 0);
    EXPECT_EQ(asked, nullptr);
    QORUseTvwTreeSettingCtrl("NotInstalled");
    asked = this;
    EXPECT_LT(GetQORTvwTreeSettingCtrl(IID_QORITvwTreeSettingAtt, &asked), 0);
    EXPECT_EQ(asked, nullptr);
}

/// A host's own component, which says yes and hands out nothing.
class SilentSettings : public QORBaseUnknown {
public:
    QORStatus QueryInterface(const QORInterfaceID&, void** out) override {
        *out = nullptr;
        return QOR_OK;
    }
};

TEST_F(TreeSettings, MayBeAHostsOwnWithNothingToHandOut) {
    const QORMetaClass own("SilentSettings", Implementation, QORMetaClass::OfBaseUnknown(), "QORNull", "Tests",
                           []() -> QORBaseUnknown* { return new SilentSettings(); });
    QORUseTvwTreeSettingCtrl("SilentSettings");
    void* asked = this;
    EXPECT_EQ(GetQORTvwTreeSettingCtrl(IID_QORITvwTreeSettingAtt, &asked), QOR_OK);
    EXPECT_EQ(asked, nullptr);
}

class Commanded : public QORBaseUnknown {
public:
    QORPathElement* DecodeSentCommand(unsigned char& flag) {
        flag = 0;
        return new QORPathElement(this);
    }
};

TEST(NavigateObjectModify, HandsOutAPathThatIsTheCallers) {
    Commanded object;
    QORINavigateObjectModifyTie<Commanded> tie(&object);
    unsigned char flag = 7;
    const auto path = QORVar<QORPathElement>::Adopt(tie.DecodeSentCommand(flag));
    EXPECT_EQ(path->GetElement(1).Get(), &object);
    EXPECT_EQ(flag, 0);
    EXPECT_EQ(path->GetReferenceCount(), 1);
}

TEST(NodeExtension, DoesNothingOutsideATree) {
    QORBaseUnknown object;
    QORNodeExtension extension;
    extension.Extend(&object);
    QORUnicodeString help("kept");
    extension.ProcessAfterSelect();
    extension.ProcessAfterAction();
    extension.UpdateElem(nullptr);
    extension.ModifyShortHelp(help);
    extension.Select(1);
    extension.SetMarked(1);
    extension.Remove();
    EXPECT_STREQ(help, "kept");
    EXPECT_EQ(extension.IsSelected() + extension.GetMarked(), 0);
    EXPECT_EQ(extension.GetAssociatedInstance(), nullptr);
    EXPECT_EQ(extension.GetController(), nullptr);
    EXPECT_EQ(extension.GetFatherContainer(), nullptr);
    EXPECT_EQ(object.GetReferenceCount(), 1);
}

} // namespace
