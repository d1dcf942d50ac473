// Rows for items: what fasteners have of their own, shape and place.

#include "planner/desktop/properties/Form.h"

#include "VXMBomInfrastructure/nodes/VXMFastenerTypes.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QDoubleSpinBox>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>

#include <array>

namespace planner::desktop {

namespace {

constexpr double kFar = 1e6; // millimetres
constexpr double kFullTurn = 360;

void addFastenerRows(Form& form, Fastener& fastener) {
    auto* const type = new QComboBox(form.rows.parentWidget());
    type->setObjectName("fastener-type");
    type->setEditable(true);
    type->addItem({});
    for (const VXMFastenerType& each : VXMFastenerTypes) {
        type->addItem(each.name);
    }
    form.rows.addRow("Process type", type);
    form.follow([type, &fastener] { type->setCurrentText(QString::fromStdString(fastener.type.value_or(""))); });
    const auto write = [type, &fastener, &session = form.session] {
        const std::string text = type->currentText().toStdString();
        if (text != fastener.type.value_or("")) {
            session.perform([&](PlanEditor& editor) {
                editor.setFastenerType(fastener, text.empty() ? std::nullopt : std::optional(text));
            });
        }
    };
    QObject::connect(type, &QComboBox::activated, type, write);
    QObject::connect(type->lineEdit(), &QLineEdit::editingFinished, type, write);

    auto* const assigned = new QCheckBox("counts as assigned", form.rows.parentWidget());
    form.rows.addRow(QString(), assigned);
    form.follow([assigned, &fastener] { assigned->setChecked(fastener.assigned.value_or(true)); });
    QObject::connect(assigned, &QCheckBox::clicked, assigned, [&fastener, &session = form.session](bool on) {
        session.perform([&](PlanEditor& editor) { editor.setAssigned(fastener, on); });
    });
}

QDoubleSpinBox* makeNumber(Form& form, double least, double most, const QString& unit) {
    auto* const box = new QDoubleSpinBox(form.rows.parentWidget());
    box->setRange(least, most);
    box->setDecimals(3);
    box->setSuffix(unit);
    box->setKeyboardTracking(false);
    box->setStepType(QAbstractSpinBox::AdaptiveDecimalStepType);
    return box;
}

/// Shows a number unless it is what is shown.
void setQuietly(QDoubleSpinBox& box, double value) {
    const QSignalBlocker blocker(&box);
    box.setValue(value);
}

/// The sizes that a form has, as they are called.
struct FormTexts {
    Shape::Form form;
    const char* name;
    std::array<const char*, 3> sizes;
};
constexpr std::array<FormTexts, 4> kFormTexts{
    {{Shape::Form::Box, "Box", {"Length x", "Length y", "Length z"}},
     {Shape::Form::Cylinder, "Cylinder", {"Radius", "Height", nullptr}},
     {Shape::Form::Sphere, "Sphere", {"Radius", nullptr, nullptr}},
     {Shape::Form::Step, "Part of a STEP file", {nullptr, nullptr, nullptr}}}};

/// A shape of the form to begin with.
Shape freshShape(Shape::Form form, const QString& file) {
    constexpr double kSize = 100;
    Shape shape;
    shape.form = form;
    for (const FormRule& rule : kForms) {
        if (rule.form == form) {
            shape.sizes.assign(rule.sizes, kSize);
        }
    }
    shape.file = file.toStdString();
    return shape;
}

/// The widgets of a shape, and how they go with the plan.
class ShapeRows {
public:
    ShapeRows(Form& form, Item& item)
        : form_(form), item_(item), session_(form.session), forms_(new QComboBox(form.rows.parentWidget())) {
        forms_->setObjectName("shape-form");
        forms_->addItem("None");
        for (const FormTexts& each : kFormTexts) {
            forms_->addItem(each.name);
        }
        form.rows.addRow("Shape", forms_);
        QObject::connect(forms_, &QComboBox::activated, forms_, [rows = *this](int index) { rows.choose(index); });
        for (std::size_t i = 0; i < sizes_.size(); ++i) {
            addSize(i);
        }
        addFile();
    }

    void read() const {
        const auto& shape = item_.geometry().shape;
        forms_->setCurrentIndex(shape ? static_cast<int>(shape->form) + 1 : 0);
        for (std::size_t i = 0; i < sizes_.size(); ++i) {
            const bool used = shape && i < shape->sizes.size();
            setQuietly(*sizes_[i], used ? shape->sizes[i] : 0);
            labels_[i]->setText(used ? kFormTexts[static_cast<std::size_t>(shape->form)].sizes[i] : "");
            labels_[i]->setVisible(used);
            sizes_[i]->setVisible(used);
        }
        const bool isFile = shape && shape->form == Shape::Form::Step;
        file_->setText(isFile ? QString::fromStdString(shape->file) : QString());
        part_->setText(isFile ? QString::fromStdString(shape->part.value_or("")) : QString());
        for (QWidget* const widget : std::array<QWidget*, 4>{file_, part_, fileLabel_, partLabel_}) {
            widget->setVisible(isFile);
        }
    }

private:
    void write(const Shape& shape) const {
        session_.perform([&](PlanEditor& editor) { editor.setShape(item_, shape); });
    }

    void choose(int index) const {
        if (index == 0) {
            session_.perform([&](PlanEditor& editor) { editor.setShape(item_, std::nullopt); });
            return;
        }
        const auto form = static_cast<Shape::Form>(index - 1);
        if (item_.geometry().shape && item_.geometry().shape->form == form) {
            return;
        }
        if (form != Shape::Form::Step) {
            write(freshShape(form, {}));
            return;
        }
        const QString folder = QString::fromStdString(session_.plan().folder);
        const QString path =
            QFileDialog::getOpenFileName(forms_, "STEP file", folder, "STEP files (*.stp *.step);;All files (*)");
        if (path.isEmpty()) {
            read();
        } else {
            write(freshShape(form, folder.isEmpty() ? path : QDir(folder).relativeFilePath(path)));
        }
    }

    void addSize(std::size_t index) {
        labels_[index] = new QLabel(form_.rows.parentWidget());
        sizes_[index] = makeNumber(form_, 0, kFar, " mm");
        sizes_[index]->setObjectName("shape-size-" + QString::number(index));
        form_.rows.addRow(labels_[index], sizes_[index]);
        QObject::connect(sizes_[index], &QDoubleSpinBox::valueChanged, sizes_[index],
                         [&item = item_, &session = session_, index, box = sizes_[index]](double value) {
                             const auto& now = item.geometry().shape;
                             if (!now || index >= now->sizes.size()) {
                                 return;
                             }
                             Shape shape = *now;
                             shape.sizes[index] = value;
                             if (!session.perform([&](PlanEditor& editor) { editor.setShape(item, shape); })) {
                                 setQuietly(*box, now->sizes[index]);
                             }
                         });
    }

    void addFile() {
        QWidget* const parent = form_.rows.parentWidget();
        fileLabel_ = new QLabel("File", parent);
        file_ = new QLineEdit(parent);
        partLabel_ = new QLabel("Part", parent);
        part_ = new QLineEdit(parent);
        part_->setObjectName("shape-part");
        part_->setPlaceholderText("all of it");
        form_.rows.addRow(fileLabel_, file_);
        form_.rows.addRow(partLabel_, part_);
        const auto write = [&item = item_, &session = session_, file = file_, part = part_] {
            const auto& now = item.geometry().shape;
            if (!now || now->form != Shape::Form::Step) { // which hides the field, and that ends typing in it
                return;
            }
            Shape shape = *now;
            const std::string partText = part->text().toStdString();
            if (shape.file == file->text().toStdString() && shape.part.value_or("") == partText) {
                return;
            }
            shape.file = file->text().toStdString();
            shape.part = partText.empty() ? std::nullopt : std::optional(partText);
            session.perform([&](PlanEditor& editor) { editor.setShape(item, shape); });
        };
        QObject::connect(file_, &QLineEdit::editingFinished, file_, write);
        QObject::connect(part_, &QLineEdit::editingFinished, part_, write);
    }

    Form form_;
    Item& item_;
    PlanSession& session_;
    QComboBox* forms_;
    std::array<QLabel*, 3> labels_{};
    std::array<QDoubleSpinBox*, 3> sizes_{};
    QLabel* fileLabel_ = nullptr;
    QLineEdit* file_ = nullptr;
    QLabel* partLabel_ = nullptr;
    QLineEdit* part_ = nullptr;
};

/// Three numbers in a row, at positions `first` and behind it of the item's place.
void addPlaceRow(Form& form, Item& item, const QString& label, std::size_t first, double most, const QString& unit) {
    constexpr std::size_t kNumbers = 6;
    auto* const line = new QHBoxLayout;
    line->setSpacing(2);
    std::array<QDoubleSpinBox*, 3> boxes{};
    for (std::size_t axis = 0; axis < boxes.size(); ++axis) {
        boxes[axis] = makeNumber(form, -most, most, {});
        boxes[axis]->setObjectName("place-" + QString::number(first + axis));
        boxes[axis]->setButtonSymbols(QAbstractSpinBox::NoButtons);
        boxes[axis]->setDecimals(1);
        boxes[axis]->setToolTip(QString("%1, in %2").arg(QStringView(u"xyz")[static_cast<int>(axis)]).arg(unit));
        boxes[axis]->setMinimumWidth(boxes[axis]->fontMetrics().horizontalAdvance("-99999.9"));
        boxes[axis]->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed); // the columns of both rows agree
        line->addWidget(boxes[axis]);
        QObject::connect(boxes[axis], &QDoubleSpinBox::valueChanged, boxes[axis],
                         [&item, &session = form.session, at = first + axis](double value) {
                             Place place = item.geometry().place.value_or(Place{{0, 0, 0}});
                             if (at >= place.numbers.size()) {
                                 place.numbers.resize(kNumbers);
                             }
                             place.numbers[at] = value;
                             session.perform([&](PlanEditor& editor) { editor.setPlace(item, place); });
                         });
    }
    form.rows.addRow(label, line);
    form.follow([boxes, &item, first] {
        const auto& place = item.geometry().place;
        for (std::size_t axis = 0; axis < boxes.size(); ++axis) {
            const bool given = place && first + axis < place->numbers.size();
            setQuietly(*boxes[axis], given ? place->numbers[first + axis] : 0);
        }
    });
}

} // namespace

void addShapeRows(Form& form, Item& item) {
    form.addHeading("In space");
    const ShapeRows rows(form, item);
    form.follow([rows] { rows.read(); });
    addPlaceRow(form, item, "Place (mm)", 0, kFar, "millimetres");
    addPlaceRow(form, item, "Turned (°)", 3, kFullTurn, "degrees");
}

void addItemRows(Form& form, Item& item) {
    if (item.kind() == ItemKind::Fastener) {
        addFastenerRows(form, static_cast<Fastener&>(item));
        addJoinRows(form, static_cast<Fastener&>(item));
    }
    addShapeRows(form, item);
}

} // namespace planner::desktop
