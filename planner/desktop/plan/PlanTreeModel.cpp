#include "planner/desktop/plan/PlanTreeModel.h"

#include "planner/desktop/icons/Icons.h"
#include "planner/desktop/plan/PlanDrop.h"
#include "planner/desktop/plan/PlanSession.h"
#include "planner/desktop/plan/RowChanges.h"
#include "planner/desktop/questions/Findings.h"

#include "planner/model/Contents.h"

#include <QPalette>

#include <algorithm>
#include <iterator>
#include <limits>

namespace planner::desktop {

namespace {

/// Rows that a portion brings: a few screens.
constexpr std::size_t kPortion = 200;

} // namespace

struct PlanTreeModel::Node {
    PlanRow row;
    QORVar<ModelObject> held;
    Node* above = nullptr;
    std::size_t position = 0;
    bool filled = false;
    std::size_t total = 0; // rows that belong below, made or not; those that were made are the first of them
    std::vector<std::unique_ptr<Node>> below = {};
};

PlanTreeModel::PlanTreeModel(PlanSession& session, const Findings& findings, QObject* parent)
    : QAbstractItemModel(parent), session_(session), findings_(findings), top_(std::make_unique<Node>()) {
    connect(&session_, &PlanSession::changed, this, &PlanTreeModel::refresh);
    connect(&session_, &PlanSession::replaced, this, [this] { compare(*top_); });
    connect(&findings_, &Findings::changed, this, &PlanTreeModel::refresh);
    connect(&session_, &PlanSession::aboutToReplace, this, [this] {
        beginResetModel();
        made_.clear();
        top_ = std::make_unique<Node>();
        endResetModel();
    });
    compare(*top_);
}

PlanTreeModel::~PlanTreeModel() = default;

std::unique_ptr<PlanTreeModel::Node> PlanTreeModel::makeNode(const PlanRow& row, Node& above) {
    auto node = std::make_unique<Node>(Node{row, QORVar<ModelObject>(row.object), &above});
    made_.emplace(row.object, node.get());
    return node;
}

void PlanTreeModel::forget(const Node& node) {
    std::vector<const Node*> open{&node};
    while (!open.empty()) {
        const Node* const gone = open.back();
        open.pop_back();
        const auto [begin, end] = made_.equal_range(gone->row.object);
        made_.erase(std::find_if(begin, end, [&](const auto& entry) { return entry.second == gone; }));
        for (const auto& below : gone->below) {
            open.push_back(below.get());
        }
    }
}

void PlanTreeModel::renumber(Node& above, std::size_t from) {
    for (std::size_t position = from; position < above.below.size(); ++position) {
        above.below[position]->position = position;
    }
}

// Following the plan

void PlanTreeModel::refresh() {
    std::vector<Node*> open{top_.get()};
    while (!open.empty()) {
        Node& node = *open.back();
        open.pop_back();
        compare(node);
        for (const auto& below : node.below) {
            if (below->filled) {
                open.push_back(below.get());
            }
        }
        if (!node.below.empty()) {
            Q_EMIT dataChanged(indexOf(*node.below.front()), indexOf(*node.below.back(), What));
        }
    }
}

/// Brings the rows below in line with the plan. As many are made as there were, with room for what has come, and no
/// fewer than `least`.
void PlanTreeModel::compare(Node& above, std::size_t least) {
    std::vector<PlanRow> wanted = rowsBelow(session_.plan(), above.row.object);
    const std::size_t grown = wanted.size() - std::min(wanted.size(), above.total);
    const std::size_t made = std::max(least, above.below.size() + std::min(grown, kPortion));
    above.filled = true;
    above.total = wanted.size();
    wanted.resize(std::min(wanted.size(), made));
    std::vector<PlanRow> shown(above.below.size());
    std::transform(above.below.begin(), above.below.end(), shown.begin(), [](const auto& node) { return node->row; });
    for (const RowChange& change : rowChanges(std::move(shown), wanted)) {
        switch (change.kind) {
        case RowChange::Remove:
            removeNodes(above, change.first, change.count);
            break;
        case RowChange::Insert:
            insertNodes(above, change.first,
                        {wanted.begin() + static_cast<std::ptrdiff_t>(change.first),
                         wanted.begin() + static_cast<std::ptrdiff_t>(change.first + change.count)});
            break;
        case RowChange::Move:
            moveNode(above, change.first, change.target);
            break;
        }
    }
}

void PlanTreeModel::removeNodes(Node& above, std::size_t first, std::size_t count) {
    beginRemoveRows(indexOf(above), static_cast<int>(first), static_cast<int>(first + count - 1));
    const auto begin = above.below.begin() + static_cast<std::ptrdiff_t>(first);
    const auto end = begin + static_cast<std::ptrdiff_t>(count);
    std::for_each(begin, end, [this](const auto& node) { forget(*node); });
    above.below.erase(begin, end);
    renumber(above, first);
    endRemoveRows();
}

void PlanTreeModel::insertNodes(Node& above, std::size_t first, const std::vector<PlanRow>& rows) {
    beginInsertRows(indexOf(above), static_cast<int>(first), static_cast<int>(first + rows.size() - 1));
    std::vector<std::unique_ptr<Node>> nodes;
    nodes.reserve(rows.size());
    for (const PlanRow& row : rows) {
        nodes.push_back(makeNode(row, above));
    }
    above.below.insert(above.below.begin() + static_cast<std::ptrdiff_t>(first), std::make_move_iterator(nodes.begin()),
                       std::make_move_iterator(nodes.end()));
    renumber(above, first);
    endInsertRows();
}

void PlanTreeModel::moveNode(Node& above, std::size_t from, std::size_t target) {
    // Qt counts the target with the row still in its place.
    const auto gap = static_cast<int>(target > from ? target + 1 : target);
    beginMoveRows(indexOf(above), static_cast<int>(from), static_cast<int>(from), indexOf(above), gap);
    const auto at = [&](std::size_t position) {
        return above.below.begin() + static_cast<std::ptrdiff_t>(position);
    };
    if (target > from) {
        std::rotate(at(from), at(from + 1), at(target + 1));
    } else {
        std::rotate(at(target), at(from), at(from + 1));
    }
    renumber(above, std::min(from, target));
    endMoveRows();
}

// Rows

PlanTreeModel::Node* PlanTreeModel::nodeAt(const QModelIndex& index) const {
    return index.isValid() ? static_cast<Node*>(index.internalPointer()) : top_.get();
}

QModelIndex PlanTreeModel::indexOf(const Node& node, int column) const {
    return node.above ? createIndex(static_cast<int>(node.position), column, &node) : QModelIndex();
}

PlanRow PlanTreeModel::rowAt(const QModelIndex& index) const {
    return nodeAt(index)->row;
}

std::size_t PlanTreeModel::listPosition(const QModelIndex& index) const {
    const Node& node = *nodeAt(index);
    const auto& siblings = node.above->below;
    auto before = std::count_if(siblings.begin(), siblings.begin() + static_cast<std::ptrdiff_t>(node.position),
                                [&](const auto& sibling) { return sibling->row.relation == node.row.relation; });
    ModelObject& owner = *node.above->row.object;
    const auto& entries = listOf(owner, *node.row.relation)->entries();
    // What stands in the owner itself has rows of its own.
    const auto found = std::find_if(entries.begin(), entries.end(), [&](const ModelObject* entry) {
        return !isContained(*entry, &owner) && before-- == 0;
    });
    return static_cast<std::size_t>(found - entries.begin());
}

std::vector<QModelIndex> PlanTreeModel::indexesOf(const ModelObject& object) const {
    std::vector<QModelIndex> indexes;
    const auto [begin, end] = made_.equal_range(&object);
    std::transform(begin, end, std::back_inserter(indexes),
                   [this](const auto& entry) { return indexOf(*entry.second); });
    return indexes;
}

QModelIndex PlanTreeModel::reach(ModelObject& object) {
    std::vector<const ModelObject*> path; // the object first
    for (const ModelObject* each = &object; each && each->sort() != Sort::Item;) {
        path.push_back(each);
        each = static_cast<const FlowObject*>(each)->container();
    }
    Node* node = top_.get();
    while (!path.empty()) {
        const std::vector<PlanRow> rows = rowsBelow(session_.plan(), node->row.object);
        const auto found = std::find_if(rows.begin(), rows.end(),
                                        [&](const PlanRow& row) { return row.object == path.back() && !row.relation; });
        if (found == rows.end()) {
            return {};
        }
        const auto position = static_cast<std::size_t>(found - rows.begin());
        compare(*node, position + 1);
        node = node->below[position].get();
        path.pop_back();
    }
    return indexOf(*node);
}

QModelIndex PlanTreeModel::index(int row, int column, const QModelIndex& parent) const {
    const Node& above = *nodeAt(parent);
    if (row < 0 || static_cast<std::size_t>(row) >= above.below.size() || column < 0 || column >= ColumnCount) {
        return {};
    }
    return createIndex(row, column, above.below[static_cast<std::size_t>(row)].get());
}

QModelIndex PlanTreeModel::parent(const QModelIndex& child) const {
    const Node* const above = nodeAt(child)->above;
    return above ? indexOf(*above) : QModelIndex();
}

int PlanTreeModel::rowCount(const QModelIndex& parent) const {
    return parent.column() > 0 ? 0 : static_cast<int>(nodeAt(parent)->below.size());
}

int PlanTreeModel::columnCount(const QModelIndex&) const {
    return ColumnCount;
}

bool PlanTreeModel::hasChildren(const QModelIndex& parent) const {
    const Node& node = *nodeAt(parent);
    return !node.row.object || (parent.column() == 0 && hasRowsBelow(*node.row.object));
}

bool PlanTreeModel::canFetchMore(const QModelIndex& parent) const {
    const Node& node = *nodeAt(parent);
    return node.row.object && !node.filled;
}

/// The first portion only: a view that lays out its rows anew asks each time whether there are more.
void PlanTreeModel::fetchMore(const QModelIndex& parent) {
    if (canFetchMore(parent)) {
        compare(*nodeAt(parent));
    }
}

void PlanTreeModel::fetchNext(const QModelIndex& above) {
    Node& node = *nodeAt(above);
    if (node.below.size() < node.total) {
        compare(node, node.below.size() + kPortion);
    }
}

void PlanTreeModel::fetchAll(const QModelIndex& above) {
    compare(*nodeAt(above), std::numeric_limits<std::size_t>::max());
}

// What is seen

namespace {

QString kindOf(const ModelObject& object) {
    switch (object.sort()) {
    case Sort::Activity: {
        const auto& activity = static_cast<const Activity&>(object);
        return activity.kind() == ActivityKind::Activity ? QString()
                                                         : QString::fromUtf8(kindText(activity.kind()).data());
    }
    case Sort::Item:
        return QString::fromUtf8(kindText(static_cast<const Item&>(object).kind()).data());
    default:
        return object.sort() == Sort::Resource ? "resource" : QString();
    }
}

QString nameOf(const ModelObject& object) {
    return object.sort() == Sort::Behaviour && object.id().empty() ? QString("Behaviour")
                                                                   : QString::fromStdString(object.name());
}

} // namespace

QVariant PlanTreeModel::data(const QModelIndex& index, int role) const {
    const PlanRow row = rowAt(index);
    if (!row.object) {
        return {};
    }
    switch (role) {
    case Qt::DisplayRole:
        return index.column() == Name ? nameOf(*row.object)
               : row.relation         ? relationName(*row.relation)
                                      : kindOf(*row.object);
    case Qt::EditRole:
        return nameOf(*row.object);
    case Qt::DecorationRole:
        if (index.column() == Name) {
            return findings_.marks(*row.object) ? markedIconOf(*row.object) : iconOf(*row.object);
        }
        return row.relation ? icon(QString::fromUtf8(relationText(*row.relation).data())) : QIcon();
    case Qt::ForegroundRole:
        return index.column() == What ? QVariant(QPalette().brush(QPalette::PlaceholderText)) : QVariant();
    case Qt::ToolTipRole:
        return QString("%1\n%2\n%3")
            .arg(nameOf(*row.object), QString::fromStdString(row.object->id()), findings_.textOn(*row.object))
            .trimmed();
    default:
        return {};
    }
}

bool PlanTreeModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    const PlanRow row = rowAt(index);
    const std::string name = value.toString().toStdString();
    if (role != Qt::EditRole || !row.object || name == row.object->name()) {
        return false;
    }
    return session_.perform([&](PlanEditor& editor) { editor.rename(*row.object, name); });
}

Qt::ItemFlags PlanTreeModel::flags(const QModelIndex& index) const {
    const PlanRow row = rowAt(index);
    Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsDropEnabled;
    if (row.object && row.object->sort() != Sort::Behaviour) {
        flags |= Qt::ItemIsDragEnabled;
        flags |= index.column() == Name ? Qt::ItemIsEditable : Qt::NoItemFlags;
    }
    return flags;
}

// Drag and drop

QMimeData* PlanTreeModel::mimeData(const QModelIndexList& indexes) const {
    auto data = std::make_unique<PlanDrag>();
    for (const QModelIndex& index : indexes) {
        if (index.column() == Name) {
            const PlanRow row = rowAt(index);
            data->add({row, rowAt(index.parent()).object, row.relation ? listPosition(index) : 0});
        }
    }
    return data.release();
}

Qt::DropActions PlanTreeModel::supportedDropActions() const {
    return Qt::MoveAction | Qt::CopyAction;
}

bool PlanTreeModel::canDropMimeData(const QMimeData* data, Qt::DropAction, int row, int,
                                    const QModelIndex& parent) const {
    return canDrop(qobject_cast<const PlanDrag*>(data), placeAt(row, parent));
}

bool PlanTreeModel::dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int,
                                 const QModelIndex& parent) {
    const auto* const drag = qobject_cast<const PlanDrag*>(data);
    const DropPlace place = placeAt(row, parent);
    if (canDrop(drag, place) && !drop(session_, *drag, place, action == Qt::CopyAction)) {
        Q_EMIT relationWanted(place.object, drag->objects());
    }
    return false; // the rows follow the plan; the view has nothing to take out
}

/// Where a drop in front of a row goes; -1 is onto the row above.
DropPlace PlanTreeModel::placeAt(int row, const QModelIndex& parent) const {
    const Node& above = *nodeAt(parent);
    DropPlace place{above.row.object};
    if (row >= 0 && static_cast<std::size_t>(row) < above.below.size()) {
        const QModelIndex index = indexOf(*above.below[static_cast<std::size_t>(row)]);
        if (rowAt(index).relation) {
            place.beforeEntry = PlanDrag::Entry{rowAt(index), above.row.object, listPosition(index)};
        }
    }
    if (row >= 0) { // what comes next may be a row that wasn't made
        const std::vector<PlanRow> rows = rowsBelow(session_.plan(), above.row.object);
        for (auto at = static_cast<std::size_t>(row); at < rows.size() && !place.before; ++at) {
            const bool stands = !rows[at].relation && rows[at].object->sort() != Sort::Behaviour;
            place.before = stands ? rows[at].object : nullptr;
        }
    }
    return place;
}

} // namespace planner::desktop
