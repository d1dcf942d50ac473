// One edit in a plan under an open window, with the rebuild that follows, beside a forced GetBom of the window's
// generator.

#include "bench/Measures.h"
#include "bench/Meter.h"
#include "bench/PlanDraft.h"

#include "planner/edit/PlanEditor.h"

#include "QORPlatform/dialog/QORDialogLoop.h"
#include "QORPlatform/frame/QORFrmEditor.h"
#include "VXMBomInfrastructure/VXMBomViewer.m/src/VXMFabBomViewer.h"
#include "VXMBomInfrastructure/generation/VXMBomGenerator.h"

namespace bench {

using namespace planner;

namespace {

/// A line of steps, each bringing a product that can be seen, and a step beside it that leads nowhere.
class Bench {
public:
    Bench(int size, int mode) {
        PlanDraft draft;
        std::vector<Activity*> steps;
        for (int number = 1; number <= size; ++number) {
            Activity& step = draft.step(draft.root(), "S", number);
            Product& product = draft.product("P", number);
            product.setShape(Shape{Shape::Form::Sphere, {1}, {}, {}, {}});
            step.firstAssigned.add(&product);
            if (!steps.empty()) {
                draft.link(*steps.back(), step);
            }
            steps.push_back(&step);
        }
        aside_ = &draft.step(draft.root(), "aside", 0);
        aside_->assigned.add(steps[2]->firstAssigned.entries().front());
        draft.link(*steps[0], *aside_);
        draft.link(*steps[1], *aside_);
        middle_ = steps[steps.size() / 2];
        open(draft.finish(), mode);
    }
    ~Bench() {
        editor_.reset();
        window_->Release();
        QORDialogLoop::Get().Run();
    }
    Bench(const Bench&) = delete;
    Bench& operator=(const Bench&) = delete;

    void forceBill() { window_->GetGenerator()->GetBom(1); }

    // Edits that can be made any number of times.
    void changeListOnTheWay() { move(*middle_, Relation::FirstAssigned); }
    void changeListAside() { move(*aside_, Relation::Assigned); }
    void rename() { editor_->rename(*middle_, "renamed " + std::to_string(++renamed_)); }

private:
    void open(Sample sample, int mode) {
        document_ = QORVar<PlanDocument>::Adopt(new PlanDocument(std::move(sample.plan)));
        frame_ = QORVar<QORFrmEditor>::Adopt(new QORFrmEditor(document_.Get()));
        QORFrmEditor::SetCurrentEditor(frame_.Get());
        QORBaseUnknown_var root(document_->plan().process());
        window_ = new VXMFabBomViewer("bench", frame_.Get(), root, mode);
        editor_ = std::make_unique<PlanEditor>(*document_.Get());
    }

    /// Takes the first entry out of a list, or puts it back.
    void move(Activity& step, Relation relation) {
        if (taken_) {
            editor_->putItem(step, relation, *std::exchange(taken_, nullptr));
        } else {
            taken_ = listOf(step, relation)->entries().front();
            editor_->takeItem(step, relation, 0);
        }
    }

    Activity* middle_ = nullptr;
    Activity* aside_ = nullptr;
    ModelObject* taken_ = nullptr;
    int renamed_ = 0;
    QORVar<PlanDocument> document_;
    QORVar<QORFrmEditor> frame_;
    VXMFabBomViewer* window_ = nullptr;
    std::unique_ptr<PlanEditor> editor_;
};

void measureEdit(benchmark::State& state, int size, int mode, void (Bench::*edit)()) {
    Bench bench(size, mode);
    Least edited;
    Least forced;
    for ([[maybe_unused]] auto _ : state) {
        forced.add(timeOf([&] { bench.forceBill(); }));
        (bench.*edit)(); // the same edit there and back: both states are as dear
        const double seconds = timeOf([&] { (bench.*edit)(); });
        edited.add(seconds);
        state.SetIterationTime(seconds);
    }
    note(state, kSize, size);
    note(state, kSeconds, edited.get());
    note(state, kReference, forced.get());
    state.SetLabel("forced GetBom");
}

struct Edit {
    const char* name;
    int mode;
    void (Bench::*make)();
};
constexpr Edit kEdits[] = {
    {"live, mode 1", 1, &Bench::changeListOnTheWay},
    {"live, mode 2", 2, &Bench::changeListOnTheWay},
    {"live, aside", 1, &Bench::changeListAside},
    {"live, rename", 1, &Bench::rename},
};

} // namespace

void addLiveBenches(bool isQuick) {
    for (const Edit& edit : kEdits) {
        for (const int size : {10'000, 100'000}) {
            benchmark::RegisterBenchmark(
                (std::string(edit.name) + '/' + std::to_string(size)).c_str(),
                [=](benchmark::State& state) { measureEdit(state, size, edit.mode, edit.make); })
                ->Iterations(repetitionsAt(size, isQuick))
                ->UseManualTime();
        }
    }
}

} // namespace bench
