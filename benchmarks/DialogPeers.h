// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QRect>
#include <QString>
#include <memory>
#include <vector>

class QDialog;
class QWidget;

// What the dialog's opening is measured against: dialogs with as many of Qt's own widgets of the
// same kinds.
class DialogPeers
{
public:
    explicit DialogPeers(const QWidget& dialog); // only looked at now

    // A QWizard with a page for each of the dialog's five. What belongs to none of them stands on
    // the first.
    std::unique_ptr<QDialog> makeWizard(bool isStyled) const;
    // The same tree of widgets in the same places, put together in the dialog's order: each page by
    // itself, then into its stack, the content's window flags, the content into the dialog.
    std::unique_ptr<QDialog> makeTwin() const;

    int ownCount() const { return m_ownCount; }
    static int widgetCount(const QWidget& window);

private:
    using Maker = QWidget* (*)(QWidget* parent);
    struct Model
    {
        Maker make = nullptr;
        QString name;
        QString styleSheet;
        QRect geometry;
        std::vector<Model> parts;
    };

    static Model modelOf(const QWidget& widget);
    static QWidget* build(const Model& model, QWidget* parent);
    static void fill(std::vector<QWidget*>& pages, std::size_t page, const Model& model,
                     bool isStyled);

    Model m_model;
    int m_ownCount = 0;
};
