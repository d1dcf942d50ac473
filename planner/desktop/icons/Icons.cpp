#include "planner/desktop/icons/Icons.h"

#include "planner/desktop/icons/Picture.h"

#include "planner/model/Activity.h"
#include "planner/model/Item.h"

#include "QORPlatform/toolkit/QORIcons.h"

#include <QApplication>
#include <QFile>
#include <QHash>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>

/// The resources of a static library come when they are called for; outside of any namespace, as the macro wants.
static void bringResources() {
    Q_INIT_RESOURCE(icons);
}

namespace planner::desktop {

namespace {

/// An icon that is painted at any size.
class PaintedEngine : public QIconEngine {
public:
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return pixmap;
    }
};

/// Paints a picture whenever it is asked for, so that size and colours are those of the moment.
class Engine final : public PaintedEngine {
public:
    explicit Engine(const Picture& picture) : picture_(picture) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
        constexpr double kFaded = 0.4;
        const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        const auto role = mode == QIcon::Selected ? QPalette::HighlightedText : QPalette::WindowText;
        painter->save();
        painter->setOpacity(mode == QIcon::Disabled ? kFaded : 1.0);
        picture_.paint(*painter, rect, QApplication::palette().color(group, role));
        painter->restore();
    }

    QIconEngine* clone() const override { return new Engine(*this); }

private:
    Picture picture_;
};

/// An icon with a mark in its lower right corner.
class MarkedEngine final : public PaintedEngine {
public:
    explicit MarkedEngine(QIcon base) : base_(std::move(base)) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override {
        constexpr double kShare = 0.62;
        const QSize size = (QSizeF(rect.size()) * kShare).toSize();
        base_.paint(painter, rect, Qt::AlignCenter, mode, state);
        icon("finding").paint(painter,
                              QRect(rect.bottomRight() - QPoint(size.width(), size.height()) + QPoint(2, 2), size));
    }

    QIconEngine* clone() const override { return new MarkedEngine(*this); }

private:
    QIcon base_;
};

/// The program's own drawings; "I_PPRProduct" is what the rows of bills ask for.
class Drawings final : public QORIconResource {
public:
    Drawings() { bringResources(); }

    std::string GetDrawing(const std::string& iName) override {
        QFile file(":/icons/" + QString::fromStdString(iName == "I_PPRProduct" ? "product" : iName) + ".svg");
        return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : std::string();
    }
};

QString nameOf(const ModelObject& object) {
    switch (object.sort()) {
    case Sort::Activity: {
        const auto& activity = static_cast<const Activity&>(object);
        const bool isRoot = !activity.container() && activity.standsInPlan();
        return isRoot ? QString("process") : QString::fromUtf8(kindText(activity.kind()).data());
    }
    case Sort::Item:
        return QString::fromUtf8(kindText(static_cast<const Item&>(object).kind()).data());
    case Sort::Resource:
        return "resource";
    default:
        return "behaviour";
    }
}

} // namespace

void bringIcons() {
    static Drawings drawings;
    QORIconResource::SetCurrent(&drawings);
}

QIcon icon(const QString& name) {
    static QHash<QString, QIcon> icons;
    const auto known = icons.constFind(name);
    if (known != icons.constEnd()) {
        return *known;
    }
    bringIcons();
    const std::string drawing = QORIconResource::GetCurrent()->GetDrawing(name.toStdString());
    const QIcon made = drawing.empty() ? QIcon() : QIcon(new Engine(Picture(QByteArray::fromStdString(drawing))));
    return *icons.insert(name, made);
}

QIcon iconOf(const ModelObject& object) {
    return icon(nameOf(object));
}

QIcon markedIconOf(const ModelObject& object) {
    static QHash<QString, QIcon> icons;
    QIcon& made = icons[nameOf(object)];
    if (made.isNull()) {
        made = QIcon(new MarkedEngine(iconOf(object)));
    }
    return made;
}

} // namespace planner::desktop
