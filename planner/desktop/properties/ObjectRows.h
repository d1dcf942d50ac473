#pragma once

#include "planner/desktop/properties/Form.h"

#include <QListWidget>

#include <functional>
#include <vector>

namespace planner::desktop {

/// A short list of objects in a form, which follows the plan. Enter or a double click chooses an object, Delete takes
/// it out.
class ObjectRows : public QListWidget {
public:
    using Objects = std::vector<ModelObject*>;
    using Remove = std::function<void(std::size_t position)>;

    ObjectRows(Form& form, const QString& removeText, std::function<Objects()> objects, Remove remove);

private:
    void read();
    void removeCurrent();

    std::function<Objects()> objects_;
    Remove remove_;
    Objects shown_;
};

} // namespace planner::desktop
