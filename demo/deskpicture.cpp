// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "deskpicture.h"

#include "deskplaces.h"
#include "picturedesk.h"
#include "sounderpanel.h"

#include <QPainter>
#include <QPixmap>
#include <QtTest>

namespace {

const QColor deskColour(70, 90, 105);
const QColor shadowColour(40, 52, 62);

/// What is seen of the desk around each window; a desktop's own frames look otherwise everywhere.
constexpr QMargins around(10, 20, 10, 20);

/// Format and sea bed as in the other pictures: both depths are told, and apart.
SounderOptions soundingUnit()
{
    SounderOptions options;
    options.rate = 9600;
    options.format = Odom;
    options.seed = 1010;
    return options;
}

void drawWindow(QPainter &painter, QWidget &window, const QRect &place)
{
    painter.fillRect(place.adjusted(-1, -1, 1, 1), shadowColour);
    painter.drawPixmap(place, window.grab());
}

} // namespace

bool takeDeskPicture(const QString &path)
{
    PictureDesk desk(soundingUnit());
    SounderPanel panel(desk.itsSounder());
    panel.show();
    const bool came = desk.connectToSounder() && desk.textComes("highDepthLabel") &&
                      desk.textComes("lowDepthLabel") && QTest::qWaitForWindowExposed(&panel);

    QWidget &window = desk.mainWindow();
    const QSize room = QRect({}, window.size()).marginsAdded(around).size();
    const QSize besideIt = QRect({}, panel.size()).marginsAdded(around).size();
    const QRect ground(0, 0, room.width() + besideIt.width(), room.height());
    const DeskPlaces places = placesOnDesk(ground, around, window.size(), panel.size());
    QPixmap picture(ground.size());
    picture.fill(deskColour);
    QPainter painter(&picture);
    drawWindow(painter, window, places.window);
    drawWindow(painter, panel, places.panel);
    return picture.save(path) && came;
}
