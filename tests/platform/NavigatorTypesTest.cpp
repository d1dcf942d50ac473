// What the navigator's component and interfaces answer apart from any tree.

#include "QORPlatform/framework/QORMetaClass.h"
#include "QORPlatform/framework/QORVar.h"
#include "QORPlatform/navigation/QORINavigElement.h"
#include "QORPlatform/navigation/QORNodeExtension.h"
#include "QORPlatform/navigation/QORTvwTreeSettingCtrl.h"

#include <gtest/gtest.h>

namespace {

class TreeSettings : public testing::Test {
protected:
    ~TreeSettings() override {
        QORUseTvwTreeSettingCtrl(nullptr);
        QORTvwTreeSettingCtrl().SetTreeFlag(kQORTreePlain);
    }

    QORStatus ask(const QORInterfaceID& interface = IID_QORITvwTreeSettingAtt) {
        asked_ = this;
        return GetQORTvwTreeSettingCtrl(interface, &asked_);
    }
    void* asked_ = nullptr;
};

TEST_F(TreeSettings, AreSharedByAllWhoAsk) {
    ASSERT_EQ(ask(), QOR_OK);
    auto* const settings = static_cast<QORITvwTreeSettingAtt*>(asked_);
    EXPECT_EQ(settings->SetTreeFlag(kQORTreeLines), QOR_OK);
    EXPECT_EQ(settings->Release(), 0) << "the one reference is the caller's";
    unsigned char read = kQORTreePlain;
    EXPECT_EQ(QORTvwTreeSettingCtrl().GetTreeFlag(read), QOR_OK);
    EXPECT_EQ(read, kQORTreeLines);
}

TEST_F(TreeSettings, AreRefusedForAnotherInterfaceOrWithoutComponent) {
    EXPECT_LT(ask(IID_QORINavigElement), 0);
    EXPECT_EQ(asked_, nullptr);
    QORUseTvwTreeSettingCtrl("NotInstalled");
    EXPECT_LT(ask(), 0);
    EXPECT_EQ(asked_, nullptr);
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
    const QORMetaClass own("SilentSettings", ENUMTypeOfClass::Implementation, QORMetaClass::OfBaseUnknown(), "QORNull",
                           "Tests", []() -> QORBaseUnknown* { return new SilentSettings(); });
    QORUseTvwTreeSettingCtrl("SilentSettings");
    EXPECT_EQ(ask(), QOR_OK);
    EXPECT_EQ(asked_, nullptr);
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
