// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "infoform.h"
#include "ui_infoform.h"

#include "helptopics.h"
#include "resources.h"
#include "sharplogo.h"

#include <QDebug>
#include <QKeyEvent>

InfoForm::InfoForm(QWidget *parent)
    : QWidget(parent)
    , ui(std::make_unique<Ui::InfoForm>())
    , savePromptHtml(QStringLiteral(
          "<br / ><div> <h3> <img src=':/resourcefiles/images/save_icon_blue.png' height='16' "
          "width='16' /> To apply settings permanently to the device</h3> Click the 'Save "
          "Settings To Device' button.</div>"))
    , infoIconHtml(QStringLiteral("<img src=':/resourcefiles/images/info_no_border.png' "
                                  "height='16' width='16' />"))
{
    useTalVeroResources();
    ui->setupUi(this);
    showSharp(ui->footerLabel, ":/resourcefiles/images/brimsett-logo-footer.png");
    addTopics();
    ui->text->setWordWrap(true);
}

InfoForm::~InfoForm() = default;

void InfoForm::addTopics()
{
    for (const HelpTopic &topic : helpTopics()) {
        QString body = QStringLiteral("<div> <h3>") + infoIconHtml + topic.text;
        if (topic.endsWithSavePrompt) {
            body += savePromptHtml;
        }
        topics.insert(topic.title, body);
    }
}

void InfoForm::showTopic(const QString &title)
{
    const auto topic = topics.constFind(title);
    if (topic != topics.constEnd()) {
        ui->title->setText(title);
        ui->text->setText(*topic);
        layout()->activate(); // or it holds the window at what the topic before needed
        resize(sizeHint());
    }
    qDebug() << "HDHHDLKJDSH:SDHLF";
}

void InfoForm::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Cancel)) {
        close();
        return;
    }
    QWidget::keyPressEvent(event);
}

void InfoForm::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    ui->pushButton->setFocus();
}

void InfoForm::on_pushButton_clicked() { close(); }
