#include "forms/k1_design.h"

#include "model/keys.h"
#include "text/case.h"

namespace lw {

namespace {

// The key rules differ on purpose, whatever the hint promises: each form keeps its own.
const std::vector<K1Design>& designs() {
    static const std::vector<K1Design> table = {
        {"TF_K11065",
         "K1-1065-",
         {{16, 17, "Box11"}, {19, 23, "Box13"}},
         {{0, 1, "Box14"},
          {2, 3, "Box15"},
          {5, 7, "Box17"},
          {8, 10, "Box18"},
          {11, 12, "Box19"},
          {13, 18, "Box20"}},
         {6, 13, 13, 12, 12},
         K1HelpKeys::F1Only,
         K1HelpKeys::F1ToF12,
         4,
         {"Shareholder's SSN REQUIRED", 801, 0},
         {"Shareholder's Name and Address Required.", 801, 0},
         K1FillShows::FirstHalf},
        {"TF_K11120S",
         "K1-1120S-",
         {{12, 16, "Box10"}, {18, 25, "Box12"}},
         {{0, 4, "Box13"}, {6, 10, "Box15"}, {11, 15, "Box16"}, {16, 25, "Box17"}},
         {7, 13, 13, 13, 13},
         K1HelpKeys::F1Only,
         K1HelpKeys::F1Only,
         5,
         {"Shareholder's SSN REQUIRED", 801, 0},
         {"Shareholder's Name and Address Required.", 801, 1},
         K1FillShows::OtherHalf},
        {"TF_K11041",
         "K1-1041-",
         {{11, 13, "Box9"}},
         {{0, 4, "Box11"}, {5, 9, "Box12"}, {10, 12, "Box13"}, {13, 18, "Box14"}},
         {5, 13, 13, 13, 13},
         K1HelpKeys::AnyKey,
         K1HelpKeys::AnyKey,
         -1,
         {"Beneficiary's SSN/ITIN REQUIRED", 800, 1},
         {"Beneficiary's Name and Address Required.", 800, 1},
         K1FillShows::OtherHalf},
    };
    return table;
}

}  // namespace

const K1Design* k1DesignOf(std::string_view formName) {
    for (const K1Design& design : designs())
        if (text::equalsNoCase(design.form, formName)) return &design;
    return nullptr;
}

const char* k1BoxOf(const std::vector<K1CodedRows>& rows, int index) {
    for (const K1CodedRows& row : rows)
        if (index >= row.first && index <= row.last) return row.box;
    return nullptr;
}

bool k1KeyOpensList(K1HelpKeys rule, int keyCode) {
    switch (rule) {
        case K1HelpKeys::F1Only:
            return keyCode == keys::kF1;
        case K1HelpKeys::F1ToF12:
            return keys::isFunctionKey(keyCode);
        case K1HelpKeys::AnyKey:
            return true;
    }
    return false;
}

}  // namespace lw
