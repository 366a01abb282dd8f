#pragma once
// What sets the three Schedule K-1 forms apart: the key of their code list, which rows take a code from
// the list and under which box, where each column turns to the second page, which keys open the list,
// and which amount field is a check mark.

#include <string>
#include <string_view>
#include <vector>

namespace lw {

// The rows first to last of one box that take their code from the list.
struct K1CodedRows {
    int first;
    int last;
    const char* box;  // "Box11"
};

// What naming a K-1 says of a required field left blank: the message, its number, and the page turned to.
struct K1RequiredField {
    const char* message;
    int number;
    int tab;
};

// What Load TP shows of a K-1 for a second, as the people it fills may stand on the other half.
enum class K1FillShows {
    OtherHalf,  // the half not on show
    FirstHalf,  // the first half, when it is not on show
};

enum class K1HelpKeys {
    F1Only,   // only F1 opens the list
    F1ToF12,  // any function key opens it
    AnyKey,   // any key that reaches the field opens it, a letter too
};

struct K1Design {
    const char* form;  // TF_K11065
    const char* key;   // the form's part of the list's section names: "K1-1065-"
    std::vector<K1CodedRows> text2Rows;
    std::vector<K1CodedRows> text4Rows;
    int limits[5];  // Text1 to Text5: a field with an index above this stands on the second page
    K1HelpKeys text2Keys;
    K1HelpKeys text4Keys;
    int checkBoxField;               // the Text5 index of the amount that is a check mark, -1 when none
    K1RequiredField numberRequired;  // the recipient's number, asked for first
    K1RequiredField nameRequired;    // the recipient's name and address
    K1FillShows fillShows;
};

// nullptr for a form that is no Schedule K-1.
const K1Design* k1DesignOf(std::string_view formName);

// The box whose list a code row takes its codes from ("Box11"), or nullptr for a fixed row.
const char* k1BoxOf(const std::vector<K1CodedRows>& rows, int index);

// Whether a key pressed in a code field opens the list under the form's rule.
bool k1KeyOpensList(K1HelpKeys rule, int keyCode);

}  // namespace lw
