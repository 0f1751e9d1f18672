Graphs of a description, and a picture of its dialog.

  $ . "$HERE/setup.sh"

  $ mkdir -p drawn/lang && cd drawn
  $ cat >linked.dlg <<'END'
  > $VERSION 1
  > $LAYOUT
  > Begin Dialog Box 200, 100, "TITLE", .Main
  > TextBox 0, 0, 9, 9, .A
  > ListBox 0, 0, 9, 9, .L
  > PushButton 0, 0, 9, 9, .B
  > End Dialog
  > $VALUES
  > L = FILLEDBY, data, Open, Next, lists
  > L: DBLCLICK = B
  > B: DIALOG = other, back, out
  > $DEPENDANCES
  > L/ACTIVE = A(NOTNULL, x)
  > None/VISIBLE = A(1)
  > L/FILL = A
  > B/ACTIVE =
  > $EVALUATION, x
  > $INPUT
  > Start: (";", Next, Rest, End = A, (x)L(CONCAT, "|")
  > Next: A(1, 2) = Start, Gone
  > Lost: (3, Start = Who
  > $OUTPUT
  > A(1) = ("%s", A)
  > ("")
  > $OUTPUT, lists
  > ("lists")
  > $OUTPUT, unused
  > ("x")
  > $END
  > END
  $ lytdlg graph linked.dlg --of rules
  digraph "linked.dlg: dependency rules" {
    rankdir=LR; charset="utf-8"; fontname="sans-serif"; labelloc=t; label="linked.dlg: dependency rules";
    node [shape=box, fontname="sans-serif"]; edge [fontname="sans-serif", fontsize=10];
    "control L" [label="L\nListBox, line 5"];
    "control A" [label="A\nTextBox, line 4"];
    "control A" -> "control L" [label="ACTIVE (NOTNULL, x)\nline 13"];
    "control None" [label="None\nno such control", color="red", fontcolor="red", style="dashed"];
    "control A" -> "control None" [label="VISIBLE (1)\nline 14", color="red", fontcolor="red", style="dashed"];
    "control A" -> "control L" [label="FILL (1)\nline 15, from line 14", color="red", fontcolor="red", style="dashed"];
    "control A" -> "control L" [label="FILL\nline 15"];
    "control B" [label="B\nPushButton, line 6"];
    "always in line 16" [label="always", shape="plaintext"];
    "always in line 16" -> "control B" [label="ACTIVE\nline 16"];
  }
  $ lytdlg graph linked.dlg --of rules -o rules.dot && lytdlg graph linked.dlg | cmp - rules.dot
  $ lytdlg graph linked.dlg --of scan
  digraph "linked.dlg: scan states" {
    rankdir=LR; charset="utf-8"; fontname="sans-serif"; labelloc=t; label="linked.dlg: scan states";
    node [shape=box, fontname="sans-serif"]; edge [fontname="sans-serif", fontsize=10];
    subgraph "cluster 1" {
      label="part parent";
      "part 1 Start 19" [label="Start\nline 19\n= A\n(x) = L (CONCAT, '|')"];
      "part 1 Start 19" -> "part 1 Next 20" [label="';'"];
      "part 1 End" [label="End", shape="doublecircle"];
      "part 1 Start 19" -> "part 1 End" [label="'Rest', end of the text"];
      "part 1 Next 20" [label="Next\nline 20"];
      "part 1 Next 20" -> "part 1 Start 19" [label="if A(1, 2)"];
      "part 1 Gone" [label="Gone\nno such statement", color="red", fontcolor="red", style="dashed"];
      "part 1 Next 20" -> "part 1 Gone" [label="else"];
      "part 1 Lost 21" [label="Lost\nline 21\n= Who: no such control\nnever reached", color="red", fontcolor="red", style="dashed"];
      "part 1 Lost 21" -> "part 1 Start 19" [label="3 characters", style="dashed"];
    }
  }
  $ lytdlg graph linked.dlg --of groups
  digraph "linked.dlg: output groups" {
    rankdir=LR; charset="utf-8"; fontname="sans-serif"; labelloc=t; label="linked.dlg: output groups";
    node [shape=box, fontname="sans-serif"]; edge [fontname="sans-serif", fontsize=10];
    "dialog" [label="the dialog", shape="ellipse"];
    "part parent" [label="part parent\nline 18", shape="tab"];
    "dialog" -> "part parent" [label="its input"];
    "group parent" [label="group parent\nline 23", shape="note"];
    "dialog" -> "group parent" [label="its result"];
    "control L" [label="L\nListBox, line 5"];
    "library data" [label="data", shape="component"];
    "control L" -> "library data" [label="FILLEDBY Open\nline 9"];
    "group lists" [label="group lists\nline 26", shape="note"];
    "control L" -> "group lists" [label="hands over\nline 9"];
    "control B" [label="B\nPushButton, line 6"];
    "control L" -> "control B" [label="DBLCLICK\nline 10"];
    "file other.dlg" [label="other.dlg\nno such file", shape="folder", color="red", fontcolor="red", style="dashed"];
    "control B" -> "file other.dlg" [label="DIALOG\nline 11", color="red", fontcolor="red", style="dashed"];
    "group out" [label="group out\nno such group", shape="note", color="red", fontcolor="red", style="dashed"];
    "control B" -> "group out" [label="hands over\nline 11", color="red", fontcolor="red", style="dashed"];
    "part back" [label="part back\nno such part", shape="tab", color="red", fontcolor="red", style="dashed"];
    "control B" -> "part back" [label="takes apart\nline 11", color="red", fontcolor="red", style="dashed"];
    "group unused" [label="group unused\nline 28", shape="note", style="dashed"];
  }

A pixel is where the window has it.

  $ cat >lang/Test.nls <<'END'
  > [TEXTS]
  > TITLE=A & B <1>
  > LABEL=&Name:
  > MARK=With && more
  > [Buttons]
  > 001=&OK
  > 002=&Cancel
  > END
  $ cat >small.dlg <<'END'
  > $VERSION 1
  > $LAYOUT TEXTS
  > Begin Dialog Box 200, 100, "TITLE", .Main
  > Text 10, 10, 50, 12, "LABEL", .NameLabel
  > TextBox 60, 10, 60, 19, .Name
  > CheckBox 10, 40, 60, 12, "MARK", .Mark
  > TextBox 0, 0, 8, 8, .Hidden
  > OKButton 10, 60, 60, 22, .Ok
  > End Dialog
  > $VALUES
  > Hidden = HIDDEN
  > Name = abc
  > $DEPENDANCES
  > $EVALUATION, x
  > $INPUT
  > Start: (999, End = Name
  > $OUTPUT
  > $END
  > END
  $ lytdlg preview small.dlg --language Test
  <?xml version="1.0" encoding="UTF-8"?>
  <svg xmlns="http://www.w3.org/2000/svg" width="155" height="135" viewBox="0 0 155 135" font-family="Tahoma, &#39;DejaVu Sans Condensed&#39;, &#39;Liberation Sans&#39;, sans-serif" font-size="11">
    <title>A &amp; B &lt;1&gt;</title>
    <rect x="0.5" y="0.5" width="154" height="134" fill="#f4f4f4" stroke="#696969"/>
    <rect x="3" y="3" width="149" height="18" fill="#3399ff"/>
    <svg x="3" y="3" width="149" height="18">
      <text x="2" y="13" fill="#000000" font-weight="bold">A &amp; B &lt;1&gt;</text>
      <rect x="133.5" y="2.5" width="13" height="13" fill="#ffffff" stroke="#aeaeae"/>
      <path d="M136.5 5.5L143.5 12.5" stroke="#000000"/>
      <path d="M136.5 12.5L143.5 5.5" stroke="#000000"/>
    </svg>
    <svg x="3" y="22" width="149" height="110">
      <g id="control-1">
        <title>NameLabel: Text</title>
        <svg x="7" y="10" width="37" height="13">
          <text x="0 8 14 22 28" y="11" fill="#000000">Name:</text>
          <rect x="0" y="12" width="8" height="1" fill="#000000"/>
        </svg>
      </g>
      <g id="control-2">
        <title>Name: TextBox</title>
        <svg x="45" y="10" width="45" height="20">
          <rect x="0.5" y="0.5" width="44" height="19" fill="#ffffff" stroke="#aeaeae"/>
          <path d="M2.5 2.5L42.5 2.5" stroke="#696969"/>
          <path d="M2.5 2.5L2.5 17.5" stroke="#696969"/>
          <path d="M2.5 17.5L42.5 17.5" stroke="#e3e3e3"/>
          <path d="M42.5 2.5L42.5 17.5" stroke="#e3e3e3"/>
          <svg x="3" y="3" width="39" height="14">
            <text x="1 7 13" y="11" fill="#000000">abc</text>
            <rect x="1" y="0" width="18" height="13" fill="#3399ff"/>
            <text x="1 7 13" y="11" fill="#ffffff">abc</text>
          </svg>
        </svg>
      </g>
      <g id="control-3">
        <title>Mark: CheckBox</title>
        <svg x="7" y="43" width="84" height="13">
          <rect x="0.5" y="0.5" width="12" height="12" fill="#ffffff" stroke="#aeaeae" rx="2"/>
          <path d="M3 6l3 3l5 -6" fill="none" stroke="#000000" stroke-width="2"/>
          <text x="17 28 30 33 39 42 48 51 59 65 68" y="11" fill="#000000">With &amp; more</text>
        </svg>
      </g>
      <g id="control-5">
        <title>Ok: OKButton</title>
        <svg x="7" y="64" width="45" height="23">
          <rect x="0.5" y="0.5" width="44" height="22" fill="#ffffff" stroke="#3399ff" rx="2"/>
          <text x="15 23" y="16" fill="#000000">OK</text>
          <rect x="15" y="17" width="8" height="1" fill="#000000"/>
        </svg>
      </g>
    </svg>
  </svg>
  $ lytdlg preview small.dlg --language Test -o small.svg && lytdlg preview small.dlg --language Test | cmp - small.svg
