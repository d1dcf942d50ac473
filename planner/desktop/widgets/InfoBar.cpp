#include "planner/desktop/widgets/InfoBar.h"

#include "planner/desktop/icons/Icons.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QToolButton>

namespace planner::desktop {

InfoBar::InfoBar(QWidget* parent) : QFrame(parent), text_(new QLabel(this)), buttons_(new QHBoxLayout) {
    constexpr int kMargin = 6;
    setObjectName("info-bar");
    setFrameShape(StyledPanel);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::ToolTipBase);
    text_->setForegroundRole(QPalette::ToolTipText);
    text_->setWordWrap(true);
    text_->setTextFormat(Qt::PlainText);
    text_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* const close = new QToolButton(this);
    close->setIcon(icon("remove"));
    close->setToolTip("Close");
    close->setAutoRaise(true);
    connect(close, &QToolButton::clicked, this, &QWidget::hide);
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(kMargin * 2, kMargin, kMargin, kMargin);
    layout->addWidget(text_, 1);
    layout->addLayout(buttons_);
    layout->addWidget(close);
    hide();
}

QString InfoBar::text() const {
    return isHidden() ? QString() : text_->text();
}

void InfoBar::say(const QString& text, const std::vector<Answer>& answers) {
    if (answers.empty() && !isHidden() && buttons_->count() > 0) {
        text_->setText(offer_ + '\n' + text);
        return;
    }
    offer_ = text;
    while (QLayoutItem* const old = buttons_->takeAt(0)) {
        old->widget()->hide();
        old->widget()->deleteLater();
        delete old;
    }
    text_->setText(text);
    for (const Answer& answer : answers) {
        auto* const button = new QPushButton(answer.text, this);
        connect(button, &QPushButton::clicked, this, [this, act = answer.act] {
            hide();
            act();
        });
        buttons_->addWidget(button);
    }
    show();
}

} // namespace planner::desktop
