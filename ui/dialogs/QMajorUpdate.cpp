// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/dialogs/QMajorUpdate.h"

QMajorUpdate::QMajorUpdate(QWidget *parent) : QShowUpdate(parent, Kind::Major) {}
