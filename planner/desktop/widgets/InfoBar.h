#pragma once

#include <QFrame>

#include <functional>
#include <vector>

class QHBoxLayout;
class QLabel;

namespace planner::desktop {

/// A line at the top of the window that says or asks something without stopping the work. Shows one thing at a time,
/// the latest; an offer stays above what is said after it.
class InfoBar : public QFrame {
    Q_OBJECT

public:
    struct Answer {
        QString text;
        std::function<void()> act;
    };

    explicit InfoBar(QWidget* parent = nullptr);

    /// Shows a text with a button for each answer, and one that closes the bar. Any of them closes it.
    void say(const QString& text, const std::vector<Answer>& answers = {});

    QString text() const;

private:
    QLabel* text_;
    QString offer_; ///< the text that the buttons answer
    QHBoxLayout* buttons_;
};

} // namespace planner::desktop
