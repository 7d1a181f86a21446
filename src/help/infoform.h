// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef INFOFORM_H
#define INFOFORM_H

#include <QMap>
#include <QString>
#include <QWidget>

#include <memory>

namespace Ui {
class InfoForm;
}

/// The help window: one of eleven topics under its title. Closing it hides it; it keeps its topic.
class InfoForm : public QWidget
{
    Q_OBJECT

public:
    explicit InfoForm(QWidget *parent = nullptr);
    ~InfoForm() override;

    InfoForm(const InfoForm &) = delete;
    InfoForm &operator=(const InfoForm &) = delete;

    /// Fills the window with the topic of this title (exactly so) and gives it the size that the
    /// topic needs. An unknown title changes nothing. Showing and raising the window is up to the
    /// caller.
    void showTopic(const QString &title);

protected:
    /// Escape closes the window as its button does.
    void keyPressEvent(QKeyEvent *event) override;

    /// The button has the focus whenever the window opens.
    void showEvent(QShowEvent *event) override;

private slots:
    void on_pushButton_clicked();

private:
    void addTopics();

    std::unique_ptr<Ui::InfoForm> ui;
    QString savePromptHtml;        // follows nearly every topic
    QString infoIconHtml;          // stands before every topic's heading
    QMap<QString, QString> topics; // title to the whole text
};

#endif // INFOFORM_H
