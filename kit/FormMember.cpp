// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "kit/FormMember.h"

const QVector<FormMember> &FormMember::all()
{
    static const QVector<FormMember> all{
        {"centralwidget", "QWidget", "window", -1, -1},
        {"gridLayout", "QGridLayout", "centralwidget", -1, -1},
        {"splitter", "QSplitter", "centralwidget", 0, 0},
        {"_tree_frame_layout", "QFrame", "splitter", -1, -1},
        {"verticalLayout_3", "QVBoxLayout", "_tree_frame_layout", -1, -1},
        {"_overlay_tree_frame", "QFrame", "_tree_frame_layout", -1, -1},
        {"_property_scrollArea", "QScrollArea", "splitter", -1, -1},
        {"scrollAreaWidgetContents", "QWidget", "", -1, -1},
        {"verticalLayout", "QVBoxLayout", "scrollAreaWidgetContents", -1, -1},
        {"_property_frame", "QKXCollapsibleFrame", "scrollAreaWidgetContents", -1, -1},
        {"page", "QWidget", "", -1, -1},
        {"gridLayout_2", "QGridLayout", "page", -1, -1},
        {"_overlay_name", "QLineEdit", "page", 0, 1},
        {"_font_color_label", "QLabel", "page", 5, 0},
        {"_background_slider", "QKXColorManipulator", "page", 6, 1},
        {"_name_label", "QLabel", "page", 0, 0},
        {"_type_label", "QLabel", "page", 1, 0},
        {"_transparency_slider", "QKXColorManipulator", "page", 7, 1},
        {"_color_slider", "QKXColorManipulator", "page", 5, 1},
        {"_image_radio_button", "QRadioButton", "page", 2, 1},
        {"_text_radio_button", "QRadioButton", "page", 1, 1},
        {"_font_combo_box", "QFontComboBox", "page", 4, 1},
        {"_text_label", "QLabel", "page", 3, 0},
        {"_text_edit", "QPlainTextEdit", "page", 3, 1},
        {"_transparency_label", "QLabel", "page", 7, 0},
        {"_background_label", "QLabel", "page", 6, 0},
        {"_font_label", "QLabel", "page", 4, 0},
        {"_image_label", "QLabel", "page", 8, 0},
        {"_image_edit", "QKXTextureControls", "page", 8, 1},
        {"_size_position_frame", "QKXCollapsibleFrame", "scrollAreaWidgetContents", -1, -1},
        {"page_2", "QWidget", "", -1, -1},
        {"gridLayout_4", "QGridLayout", "page_2", -1, -1},
        {"horizontalLayout", "QHBoxLayout", "gridLayout_4", 4, 1},
        {"_offset_x_spin_box", "QKXDoubleSpiner", "page_2", -1, -1},
        {"_offset_y_spin_box", "QKXDoubleSpiner", "page_2", -1, -1},
        {"_offset_spacer_frame", "QFrame", "page_2", -1, -1},
        {"_offset_label", "QLabel", "page_2", 4, 0},
        {"_type_label_2", "QLabel", "page_2", 0, 0},
        {"_position_label", "QLabel", "page_2", 3, 0},
        {"_size_label", "QLabel", "page_2", 2, 0},
        {"_absolute_radio_button", "QRadioButton", "page_2", 0, 1},
        {"_position_combo_box", "QComboBox", "page_2", 3, 1},
        {"_relative_radio_button", "QRadioButton", "page_2", 1, 1},
        {"_size_slider", "QKXSlider", "page_2", 2, 1},
        {"_offset_spacer_frame2", "QFrame", "scrollAreaWidgetContents", -1, -1},
        {"statusbar", "QStatusBar", "window", -1, -1},
    };
    return all;
}

const QVector<const char *> &FormMember::inputs()
{
    static const QVector<const char *> inputs{
        "_image_radio_button",  "_text_radio_button",     "_text_edit",
        "_font_combo_box",      "_color_slider",          "_background_slider",
        "_transparency_slider", "_absolute_radio_button", "_relative_radio_button",
        "_size_slider",         "_position_combo_box",    "_offset_x_spin_box",
        "_offset_y_spin_box"};
    return inputs;
}

const QVector<QPair<const char *, const char *>> &FormMember::texts()
{
    static const QVector<QPair<const char *, const char *>> all{
        {"_font_color_label", "Font Color"},
        {"_name_label", "Name"},
        {"_type_label", "Type"},
        {"_image_radio_button", "Image"},
        {"_text_radio_button", "Text"},
        {"_text_label", "Text"},
        {"_transparency_label", "Background Transparency"},
        {"_background_label", "Background Color"},
        {"_font_label", "Font"},
        {"_image_label", "Image"},
        {"_offset_label", "Offset XY"},
        {"_type_label_2", "Scale"},
        {"_position_label", "Position"},
        {"_size_label", "Size"},
        {"_absolute_radio_button", "Absolute"},
        {"_relative_radio_button", "Relative"},
    };
    return all;
}
