#include "planner/desktop/icons/Icons.h"

#include "planner/desktop/icons/Picture.h"

#include "planner/model/Activity.h"
#include "planner/model/Item.h"

#include <QApplication>
#include <QFile>
#include <QHash>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>

/// The resources of a static library come with the first call for them; outside of any namespace, as the macro wants.
static void bringResources() {
    Q_INIT_RESOURCE(icons);
}

namespace planner::desktop {

namespace {

/// Paints a picture whenever it is asked for, so that size and colours are those of the moment.
class Engine final : public QIconEngine {
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

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return pixmap;
    }

    QIconEngine* clone() const override { return new Engine(*this); }

private:
    Picture picture_;
};

/// What the platform's tree calls its icons, and ours for it.
QString fileOf(const QString& name) {
    return ":/icons/" + (name == "I_PPRProduct" ? QString("product") : name) + ".svg";
}

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

QIcon icon(const QString& name) {
    static QHash<QString, QIcon> icons;
    const auto known = icons.constFind(name);
    if (known != icons.constEnd()) {
        return *known;
    }
    bringResources();
    QFile file(fileOf(name));
    const QIcon made = file.open(QIODevice::ReadOnly) ? QIcon(new Engine(Picture(file.readAll()))) : QIcon();
    return *icons.insert(name, made);
}

QIcon iconOf(const ModelObject& object) {
    return icon(nameOf(object));
}

} // namespace planner::desktop
