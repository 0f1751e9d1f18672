// The browser in which an author picks an entry of a catalogue.
//
// The whole catalogue is in the control before the dialog shows. It is read from its data source once and kept; a
// later opening shows it again, with the branches that were open and the entry that was chosen at the last confirmation.
#pragma once

#include "tree/ClytNode.h"

#include <afxcmn.h>

#include <optional>

class ClytTreeDialog : public CDialog
{
public:
    // The first character of a request says what may be picked:
    //   S  symbols                         G  groups; symbols are not shown
    //   P  groups of the para tree         W  any entry, for the wizard
    // Any other letter asks for entries of that type, of which there may be none. The rest is the key (for kinds other
    // than groups, its beginning) of the entry to select at opening.
    explicit ClytTreeDialog(const CString& request);

    // The key of the entry picked; in kind W, its type, key and label.
    const CString& GetResult() const { return choice; }

protected:
    BOOL OnInitDialog() override;
    void OnOK() override;

    afx_msg void OnSize(UINT sizeKind, int width, int height);
    afx_msg void OnItemChange(NMHDR* header, LRESULT* result);
    afx_msg void OnDoubleClick(NMHDR* header, LRESULT* result);
    DECLARE_MESSAGE_MAP()

private:
    void TakeSize();
    void SetTexts();
    void LoadImages();
    void FillTree();
    HTREEITEM ExpandTree();
    void SelectItem(HTREEITEM item);
    void MarkInitialNode();
    void CountConfirmation() const;
    void StoreSize() const;
    void StoreItemStates();

    CTreeCtrl
        treeCtrl; // holds the handle of control 1000 without joining it: a fill sends it a message for each record
    CImageList imageList;
    CString choice;
    CString selectKey;
    CString startKey;
    char kind;
    bool isPara;
    ClytNodeList& nodes; // lives as long as the process
};

// Shows the browser. What the user has picked, when he confirmed it.
std::optional<CString> lytBrowse(const CString& request);
