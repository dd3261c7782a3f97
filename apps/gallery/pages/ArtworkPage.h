#pragma once

#include "../Page.h"

/// The pictures of the library on dark and on light ground.
class ArtworkPage : public Page
{
    Q_OBJECT

public:
    ArtworkPage();

    QWidget *recipe(QWidget *parent) override;
};
