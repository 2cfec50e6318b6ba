#pragma once

#include <cstdint>

/// The kind of a control: the first field of its record, which selects its description class.
enum class UIControlKind : std::uint32_t
{
    Text = 1,
    HyperlinkText = 2,
    Edit = 3,
    Combo = 4,
    List = 5,
    Check = 6,
    Radio = 7,
    RadioPush = 8,
    RadioImage = 9,
    Spin = 10,
    DimensionSpin = 11,
    BitmapButton = 12,
    Slider = 13,
    GroupBox = 14,
    Button = 15,
    Image = 16,
    Summary = 17,
    Menu = 18,
    ListView = 19,
    EditableList = 20,
    JobNotesPref = 21,
    NonDataModelList = 22,
    Plain = 23,
    MRU = 24,
    TreeView = 25,
};

/// The kind of a molecule: the first field of its record, which selects its run-time class.
enum class UIMoleculeKind : std::uint32_t
{
    CheckBox = 1,
    ComboBox = 2,
    GroupBox = 3,  ///< A frame with a caption and child molecules inside.
    Container = 4, ///< Holds a whole nested container, in some modes only (UIMoleculeData).
    PickOne = 5,
    PickOneRadio = 6,
    RadioButtons = 7,
    Spin = 8,
    Slider = 9,
    Edit = 10,
    RangeOfInteger = 11,
    Text = 12, ///< A line or short paragraph of explanation, bound to no feature.
    DimensionSpin = 13,
    Status = 14, ///< What is in conflict, or differs from the defaults; bound to no feature.
    Button = 15, ///< A push button that reports an action.
};

/// The kind of a tree-view item.
enum class UITvControlKind : std::uint32_t
{
    Node = 1,
    Combo = 2,
    Spin = 3,
    Edit = 4,
    Button = 5,
};

/// The kind of a menu item.
enum class UIMenuItemKind : std::uint32_t
{
    Item = 1,
    Dynamic = 2,   ///< Stands for every option that its feature has when the menu opens.
    Header = 3,    ///< A heading that cannot be chosen.
    PaperTray = 4, ///< A tray, with what is loaded in it.
};

/// What a list does with options that a constraint has disabled.
enum class UIDisabledOptions : std::uint32_t
{
    Grey,   ///< Stay in the list, grey, with their reason.
    Remove, ///< Leave the list until they are possible again.
};
