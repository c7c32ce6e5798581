// A list of layers with check boxes.

#include <orlo.h>

void FillLayerList(CCheckListBox& list, CWnd* parent, TableStruct* layers) {
    list.Create(WS_CHILD | WS_VISIBLE | WS_VSCROLL | LBS_OWNERDRAWFIXED | LBS_HASSTRINGS | LBS_NOTIFY,
                CRect(10, 10, 200, 160), parent, 101);
    for (const uint16_t id : orlo::host::Entries(layers)) {
        char name[256];
        if (TableEntryGetName(layers, id, name, sizeof name))
            list.AddString(name, LayerGetVisible(TableGetOwner(layers), id));
    }
}

int CountChecked(const CCheckListBox& list) {
    int checked = 0;
    for (int i = 0; i < list.GetCount(); ++i)
        checked += list.IsItemChecked(i);
    return checked;
}
