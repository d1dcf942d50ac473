#include "QORPlatform/visualization/QORI3DGeoVisu.h"
#include "QORPlatform/visualization/QORViewer.h"
#include "QORPlatform/visualization/QORViewpointEditor.h"
#include "support/RecordingToolkit.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace {

using recording::Log;
using recording::Toolkit;

/// A thing in space, through two interface pointers.
class Block : public QORBaseUnknown {
public:
    explicit Block(int number = 0) { SetIdentity(number); }

    QORStatus QueryInterface(const QORInterfaceID& interface, void** out) override {
        const QORStatus own = QORAnswer(interface, out, visu_);
        return own < 0 ? QORBaseUnknown::QueryInterface(interface, out) : own;
    }
    QORStatus GetShape(QORGeoShape& shape) const {
        shape.sizes[0] = size_;
        return QOR_OK;
    }
    static QORStatus GetPlace(QORGeoPlace&) { return QOR_FAILED; }

    double size_ = 1;

private:
    QORI3DGeoVisuTie<Block> visu_{this};
};

/// Answers with the interfaces of another object.
class Delegate : public QORBaseUnknown {
public:
    explicit Delegate(QORBaseUnknown& other) : other_(other) {}
    QORStatus QueryInterface(const QORInterfaceID& interface, void** out) override {
        return other_.QueryInterface(interface, out);
    }

private:
    QORBaseUnknown& other_;
};

QORVar<QORPathElement> pathTo(QORBaseUnknown* object) {
    return QORVar<QORPathElement>::Adopt(new QORPathElement(object));
}

/// A 3D viewer on which blocks 1 and 2 can be shown.
class Showing : public testing::Test {
protected:
    Showing() {
        interfaces_.Append(&IID_QORI3DGeoVisu);
        EXPECT_EQ(log_.take(), "QOR3DViewpoint added at 0");
    }

    QORStatus attach(const QORPathElement* path, QORViewpoint* viewpoint, QORViewer* viewer, int variant = 0) {
        return manager_.AttachTo(path, viewpoint, interfaces_, viewer, 0, 0, 0, 0, variant);
    }
    QORStatus attach(QORBaseUnknown* object) { return attach(pathTo(object).Get(), viewpoint_, viewer_); }
    QORStatus detach(QORBaseUnknown* object) {
        return manager_.DetachFrom(pathTo(object).Get(), viewpoint_, interfaces_, 0);
    }
    std::string shown() const {
        std::string text;
        for (const QORBaseUnknown_var& object : manager_.GetShown(*viewpoint_)) {
            text += recording::numberOf(*object.Get()) + " ";
        }
        return text;
    }

    Log log_;
    Toolkit toolkit_{log_};
    QORVisManager& manager_ = *QORVisManager::GetVisManager();
    QORListInterfaceID interfaces_;
    Block one_{1};
    Block two_{2};
    QORXSO set_;
    std::unique_ptr<QORDlgFrame> stage_ = std::make_unique<QORDlgFrame>(nullptr, "stage");
    QORViewer* viewer_ = new QORNavigation3DViewer(stage_.get(), "V", kQORViewerNavigated, 150, 200, kQORViewerScene);
    QORViewpoint* viewpoint_ = viewer_->GetMain3DViewpoint();
};

TEST_F(Showing, IsASetOfImplementationsInTheOrderOfAttaching) {
    const QORI3DGeoVisu_var visu(&one_);
    for (QORBaseUnknown* object : {static_cast<QORBaseUnknown*>(&two_), static_cast<QORBaseUnknown*>(visu.Get()),
                                   static_cast<QORBaseUnknown*>(&two_)}) {
        EXPECT_EQ(attach(object), QOR_OK);
    }
    EXPECT_EQ(shown(), "2 1 ");
    EXPECT_TRUE(manager_.IsShown(&one_, *viewpoint_));
    EXPECT_EQ(detach(&two_), QOR_OK);
    EXPECT_LT(detach(&two_), 0);
    EXPECT_EQ(shown(), "1 ");
    EXPECT_EQ(detach(&one_), QOR_OK);
    EXPECT_FALSE(manager_.IsShown(visu.Get(), *viewpoint_));
    EXPECT_EQ(log_.take(), "shown 2 | shown 1 | hidden 2 | hidden 1");
}

TEST_F(Showing, GivesBackTheInterfacesThatItAskedForToWhoGaveThem) {
    Delegate delegate(one_);
    EXPECT_EQ(attach(&delegate), QOR_OK);
    EXPECT_EQ(one_.GetReferenceCount(), 1);
    EXPECT_EQ(delegate.GetReferenceCount(), 2);
    EXPECT_EQ(detach(&delegate), QOR_OK);
    EXPECT_EQ(delegate.GetReferenceCount(), 1);
}

TEST_F(Showing, TellsPathsApartByAllThatIsOnThem) {
    const auto inside = pathTo(&one_);
    inside->AddChildElement(&two_, 0);
    EXPECT_EQ(attach(inside.Get(), viewpoint_, viewer_), QOR_OK);
    EXPECT_EQ(attach(&two_), QOR_OK);
    EXPECT_EQ(shown(), "2 2 ");
    EXPECT_EQ(detach(&two_), QOR_OK);
    EXPECT_EQ(shown(), "2 ");
    EXPECT_FALSE(manager_.IsShown(&two_, *viewpoint_));
    EXPECT_EQ(manager_.DetachFrom(inside.Get(), viewpoint_, interfaces_, 0), QOR_OK);
    EXPECT_EQ(log_.take(), "shown 2 | hidden 2") << "the peer hears of objects, not of paths";
}

TEST_F(Showing, RefusesWhatItCannotShowOrTie) {
    QORBaseUnknown shapeless;
    const auto path = pathTo(&one_);
    auto* const other = new QORNavigation2DViewer(stage_.get(), "flat", 0, 10, 10, kQORViewerPlain);
    log_.take();
    EXPECT_LT(attach(nullptr), 0) << "an empty path";
    EXPECT_LT(attach(&shapeless), 0) << "doesn't answer the interface";
    EXPECT_LT(attach(path.Get(), viewpoint_, viewer_, 1), 0) << "no such variant";
    EXPECT_LT(attach(path.Get(), nullptr, viewer_), 0);
    EXPECT_LT(attach(path.Get(), viewpoint_, nullptr), 0);
    EXPECT_LT(attach(path.Get(), viewpoint_, other), 0);
    EXPECT_LT(detach(&one_), 0);
    EXPECT_LT(manager_.AttachHSOTo(nullptr, viewpoint_), 0);
    EXPECT_LT(manager_.AttachPSOTo(nullptr, viewpoint_), 0);
    EXPECT_LT(manager_.AttachHSOTo(&set_, nullptr), 0);
    EXPECT_LT(manager_.AttachPSOTo(&set_, nullptr), 0);
    EXPECT_LT(manager_.DetachHSOFrom(viewpoint_), 0);
    EXPECT_LT(manager_.DetachPSOFrom(nullptr), 0);
    EXPECT_EQ(shown(), "");
    EXPECT_EQ(log_.take(), "");
}

TEST_F(Showing, TiesSetsAndTellsTheViewerWhatIsInThem) {
    EXPECT_EQ(manager_.AttachHSOTo(&set_, viewpoint_), QOR_OK);
    EXPECT_EQ(manager_.AttachHSOTo(&set_, viewpoint_), QOR_OK);
    EXPECT_EQ(manager_.AttachPSOTo(&set_, viewpoint_), QOR_OK);
    EXPECT_EQ(log_.take(), "sets 0 none | sets 0 0");
    EXPECT_EQ(set_.AddElement(pathTo(&one_).Get()), QOR_OK);
    EXPECT_LT(set_.AddElement(pathTo(&one_).Get()), 0);
    EXPECT_EQ(manager_.DetachPSOFrom(viewpoint_), QOR_OK);
    EXPECT_EQ(manager_.DetachHSOFrom(viewpoint_), QOR_OK);
    EXPECT_EQ(log_.take(), "sets 1 1 | sets 1 none | sets none none");
    EXPECT_LT(set_.RemoveElement(pathTo(nullptr).Get()), 0);
    EXPECT_EQ(set_.RemoveElement(pathTo(QORI3DGeoVisu_var(&one_).Get()).Get()), QOR_OK);
    EXPECT_EQ(set_.GetElement(1), nullptr);
    auto* const brief = new QORXSO();
    manager_.AttachHSOTo(brief, viewpoint_);
    manager_.AttachPSOTo(brief, viewpoint_);
    brief->Release();
    EXPECT_EQ(manager_.GetHSO(*viewpoint_), nullptr) << "forgets a set that ends";
    EXPECT_EQ(manager_.GetPSO(*viewpoint_), nullptr);
}

TEST_F(Showing, PutsWhatWasPickedIntoThePSO) {
    viewer_->ReportPick(*viewpoint_, &one_);
    EXPECT_EQ(set_.GetSize(), 0) << "no set is tied yet";
    manager_.AttachPSOTo(&set_, viewpoint_);
    viewer_->ReportPick(*viewpoint_, &one_);
    viewer_->ReportPick(*viewpoint_, &two_);
    EXPECT_EQ(set_.GetSize(), 1);
    EXPECT_TRUE(set_.Contains(&two_));
    viewer_->ReportPick(*viewpoint_, nullptr);
    EXPECT_EQ(set_.GetSize(), 0);
}

TEST_F(Showing, ExtendsWhatWasPickedAndKeepsWhatIsHovered) {
    auto* const hovered = new QORXSO();
    manager_.AttachPSOTo(&set_, viewpoint_);
    manager_.AttachHSOTo(hovered, viewpoint_);
    log_.take();
    viewer_->ReportHover(*viewpoint_, &one_);
    viewer_->ReportHover(*viewpoint_, &one_);
    viewer_->ReportPicks(*viewpoint_, {&one_, &two_, &one_, nullptr}, false);
    viewer_->ReportPick(*viewpoint_, &one_, true);
    viewer_->ReportPick(*viewpoint_, &one_, true);
    EXPECT_EQ(set_.GetElement(1), QORBaseUnknown_var(&two_));
    EXPECT_EQ(set_.GetElement(2), QORBaseUnknown_var(&one_));
    viewer_->ReportPicks(*viewpoint_, {&one_}, true);
    viewer_->ReportPicks(*viewpoint_, {&one_}, false);
    EXPECT_EQ(log_.take(), "sets 1 0 | sets 1 2 | sets 1 1 | sets 1 2 | sets 1 1") << "once for each change";
    viewer_->ReportHover(*viewpoint_, nullptr);
    EXPECT_EQ(hovered->GetSize(), 0);
    hovered->Release();
}

TEST_F(Showing, PublishesChangesOfASet) {
    class Reader : public QOREventSubscriber {
    public:
        void onChange(const char*, void*, QORNotification*, void*, long) { ++count_; }
        int count_ = 0;
    } reader;
    AddCallback(&reader, &set_, QORXSO::CHANGED(), &Reader::onChange, nullptr);
    std::vector<Block> blocks(100000);
    std::vector<QORBaseUnknown*> all;
    all.reserve(blocks.size());
    for (Block& block : blocks) {
        all.push_back(&block);
    }
    set_.SetContent(all);
    set_.SetContent(all);
    EXPECT_EQ(reader.count_, 1);
    for (Block& block : blocks) {
        ASSERT_EQ(set_.RemoveElement(pathTo(&block).Get()), QOR_OK);
    }
    EXPECT_EQ(reader.count_, 100001);
    EXPECT_EQ(set_.GetElement(1), nullptr);
}

TEST_F(Showing, TellsEachChangeOfAnObjectOnceWithANewRevision) {
    EXPECT_EQ(manager_.GetRevision(&one_), 0);
    attach(&one_);
    attach(&two_);
    auto* const other = new QORNavigation3DViewer(stage_.get(), "O", 0, 10, 10, kQORViewerPlain);
    attach(pathTo(&one_).Get(), other->GetMain3DViewpoint(), other);
    log_.take();
    const long before = manager_.GetRevision(&one_);
    viewer_->Redraw();
    EXPECT_EQ(log_.take(), "redraw") << "nothing is made anew";
    one_.size_ = 2;
    viewer_->Redraw();
    EXPECT_EQ(log_.take(), "changed 1 | changed 1 | redraw") << "in each viewpoint that shows it";
    other->Redraw();
    EXPECT_EQ(log_.take(), "redraw");
    EXPECT_GT(manager_.GetRevision(&one_), before);
    detach(&two_);
    manager_.ObjectChanged(&two_);
    EXPECT_EQ(log_.take(), "hidden 2");
}

TEST_F(Showing, LooksThroughACameraPerViewpoint) {
    auto* const second = new QOR3DViewpoint();
    viewer_->AddViewpoint(second, kQORPlacementBehind);
    QORCamera camera;
    camera.eye[0] = 7;
    second->SetCamera(camera);
    camera.eye[0] = 8;
    second->ReportCamera(camera);
    viewer_->FitAll(*second);
    EXPECT_EQ(second->GetCamera().eye[0], 8);
    attach(pathTo(&one_).Get(), second, viewer_);
    EXPECT_LT(viewer_->RemoveViewpoint(viewpoint_), 0) << "the main one stays";
    EXPECT_EQ(viewer_->RemoveViewpoint(second), QOR_OK);
    EXPECT_EQ(one_.GetReferenceCount(), 1);
    EXPECT_EQ(log_.take(), "QOR3DViewpoint added at 0 | camera at 7 | fit | shown 1 | QOR3DViewpoint removed");
}

TEST_F(Showing, LetsObjectsGoWithTheViewer) {
    const QORVar<QORViewpoint> kept(viewpoint_);
    attach(&one_);
    manager_.AttachHSOTo(&set_, viewpoint_);
    EXPECT_EQ(one_.GetReferenceCount(), 2);
    log_.take();
    stage_.reset();
    EXPECT_EQ(one_.GetReferenceCount(), 1);
    EXPECT_EQ(manager_.GetShownCount(*kept.Get()), 0);
    EXPECT_EQ(kept->GetViewer(), nullptr);
    EXPECT_EQ(log_.take(), "viewer gone");
}

TEST_F(Showing, HoldsManyObjectsInLinearTime) {
    std::vector<Block> blocks(100000);
    for (Block& block : blocks) {
        ASSERT_EQ(attach(&block), QOR_OK);
    }
    for (Block& block : blocks) {
        ASSERT_EQ(detach(&block), QOR_OK);
    }
    EXPECT_EQ(shown(), "");
}

TEST_F(Showing, TakesViewpointsAndEditorsOver) {
    auto* const flat = new QOR2DViewpoint();
    auto* const editor = new QOR2DPickViewpointEditor("Pick", flat, kQORPickOne);
    EXPECT_LT(viewer_->SetViewpointEditor(flat, editor), 0) << "not this viewer's yet";
    EXPECT_EQ(viewer_->AddViewpoint(flat, kQORPlacementInFront), QOR_OK);
    EXPECT_LT(viewer_->AddViewpoint(flat, kQORPlacementInFront), 0);
    EXPECT_LT(viewer_->AddViewpoint(nullptr, kQORPlacementInFront), 0);
    EXPECT_LT(viewer_->SetViewpointEditor(flat, nullptr), 0);
    EXPECT_EQ(viewer_->SetViewpointEditor(flat, editor), QOR_OK);
    EXPECT_EQ(viewer_->GetViewpoint(2), flat);
    EXPECT_EQ(viewer_->GetViewpoint(3), nullptr);
    EXPECT_EQ(viewer_->GetViewpointEditor(viewpoint_), nullptr);
    QORIRedrawEvent_var(viewer_)->Redraw();
    EXPECT_EQ(log_.take(), "QOR2DViewpoint added at 1 | editor Pick | redraw");
}

TEST_F(Showing, FollowsPathsThatGrowAtThePositionGiven) {
    Block three(3);
    const auto path = pathTo(nullptr);
    path->AddChildElement(&two_, 0);
    path->AddChildElement(&three, 9);
    path->AddChildElement(QORI3DGeoVisu_var(&one_).Get(), 1);
    path->AddChildElement(nullptr, 1);
    EXPECT_EQ(path->GetImplementations(), (std::vector<QORBaseUnknown*>{&one_, &two_, &three}));
    EXPECT_EQ(path->GetElement(1), QORBaseUnknown_var(&one_));
    EXPECT_EQ(path->GetElement(0), nullptr);
    EXPECT_EQ(path->GetElement(4), nullptr);
    EXPECT_EQ(two_.GetReferenceCount(), 2);
}

} // namespace
