Descriptions in their one form, section by section.

  $ . "$HERE/setup.sh"

  $ cat >sections.dlg <<'END'
  >   Free   text;
  > 
  >   $VERSION   1
  > $LAYOUT,Symbol
  >   Begin  Dialog Box 1,2 Title,.Main
  > ; numbers in columns
  > Text 28,27,100,12,"Name",.Name
  > TextBox  190 24 226 19 .Name
  > OptionButton 160,157,80,12,Slight,.Slight
  > DropListBox 136,53,228,100,.Order
  > PushButton 268,256,96,21,"Pick"
  > PushButton 16,225,160,22
  > GroupBox 16,	6,	-1,1000,"A B"
  > OptionGroup,.Order
  > "TextBox" "1",2,3,4,"T;",".N"
  >    Unknown 1,2,3,4,"",.N  ; note  
  >   End   Dialog
  >   $VALUES   ; note
  > ; delimiters
  > Mark=HIDDEN
  > 	Mark =	HIDDEN
  > Inspector :TeamNorth=Team  North
  > Place: PlaceOpen=""
  > Trade=FILLEDBY,lytdata,OpenList
  > AllRooms ( FILLEDBY , lytdata )
  > A = b; note
  > A = " x "
  > A = b,
  > A = , b
  > 
  > ; marks of defines stay in the first column, and a word that would be there does not become one
  > <X ; one
  >  A=b
  > >
  > <!X
  >  A=c
  > >
  >  <X=b
  >  >Y=b
  > 
  > ; comments of neighbours
  > A=b ; one
  > A123456789=b123456789012345678901234567890123456789 ; two
  > A=c  ; three
  >      ; continued
  >    ; not continued
  > A=d ;four
  > 
  > A=b;one
  > A=xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx;two
  > 
  >    
  > A=b
  >         ;about A
  > 
  > ; about the next section
  >   $DEPENDANCES
  > ;values
  > Rate / VISIBLE=Costs( C )
  > A/ACTIVE=B(NOTNULL),C(long,short)
  > A/ACTIVE=
  > A/ACTIVE=B(1);  note
  > ; five
  >   $EVALUATION,x
  > ;values
  > Name=NULL:NameMissing
  > A(severe)=B(NULL) :Missing
  > Digits("")=Name(area,volume):X
  >   $INPUT,p
  >   A:x=B; in the line after a header no semicolon separates
  >   A:x=B; in others it does
  > Start:(":",Known,Rest,Whole=Mark,Name
  > A:(|,B,],End=First
  > A:(1,Comma=Digits
  > A:(0,Comma=Digits
  > A:(",",U,")",E)
  > A:(x,B)=L(CONCAT,"|")
  > A:("}",B=Key,(date,today)First=today,Second=noon
  > A:Mark(S1)=Name,Other
  > A:x=Name
  >   $INPUT  ,  q
  >   $OUTPUT,p
  > A(NULL),B(NULL)=("S1:%s",Name)
  > (G)
  > (%s,Rooms(|),Parts("|"),x)
  > (%s,Rooms())
  > A=("a\"b",Name)
  >   $OUTPUT,q
  >   $END
  >   after   it
  > END
  $ lytdlg fmt - <sections.dlg
    Free   text;
  
  $VERSION 1
  $LAYOUT Symbol
  Begin Dialog Box 1, 2, "Title", .Main
      ; numbers in columns
      Text       28,  27, 100,  12, "Name", .Name
      TextBox   190,  24, 226,  19, .Name
      OptionButton 160, 157, 80, 12, "Slight", .Slight
      DropListBox 136, 53, 228, 100, .Order
      PushButton 268, 256, 96,  21, "Pick"
      PushButton 16, 225, 160,  22
      GroupBox   16,   6,  -1, 1000, "A B"
      OptionGroup .Order
      TextBox     1,   2,   3,   4, "T;", .N
      Unknown     1,   2,   3,   4, "", .N        ; note
  End Dialog
  $VALUES                                         ; note
      ; delimiters
      Mark = HIDDEN
      Mark = HIDDEN
      Inspector: TeamNorth = Team  North
      Place: PlaceOpen = ""
      Trade = FILLEDBY, lytdata, OpenList
      AllRooms(FILLEDBY, lytdata)
      A = b                                       ; note
      A = " x "
      A = b,
      A = , b
  
      ; marks of defines stay in the first column, and a word that would be there does not become one
  <X ; one
      A = b
  >
  <!X
      A = c
  >
      <X = b
      >Y = b
  
      ; comments of neighbours
      A = b                                                  ; one
      A123456789 = b123456789012345678901234567890123456789  ; two
      A = c                                                  ; three
                                                             ; continued
      ; not continued
      A = d                                       ;four
  
      A = b                                       ;one
      A = xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx  ;two
  
  
      A = b
      ;about A
  
  ; about the next section
  $DEPENDANCES
      ;values
      Rate/VISIBLE = Costs(C)
      A/ACTIVE = B(NOTNULL), C(long, short)
      A/ACTIVE =
      A/ACTIVE = B(1)                             ;  note
  ; five
  $EVALUATION, x
      ;values
      Name = NULL: NameMissing
      A(severe) = B(NULL): Missing
      Digits("") = Name(area, volume): X
  $INPUT, p
    A:x=B; in the line after a header no semicolon separates
      A: x = B                                    ; in others it does
      Start: (":", Known, Rest, Whole = Mark, Name
      A: ("|", B, "]", End = First
      A: (1, Comma = Digits
      A: ("0", Comma = Digits
      A: (",", U, ")", E)
      A: ("x", B) = L(CONCAT, "|")
      A: ("}", B = Key, (date, today)First = today, Second = noon
      A: Mark(S1) = Name, Other
      A: x = Name
  $INPUT, q
  $OUTPUT, p
      A(NULL), B(NULL) = ("S1:%s", Name)
      ("G")
      ("%s", Rooms("|"), Parts("|"), x)
      ("%s", Rooms())
      A = ("a\"b", Name)
  $OUTPUT, q
  $END
    after   it

The kind of each line end is kept.

  $ printf '$VERSION  1\r\n$LAYOUT  S\n$VALUES\nA=b\r\nA=c' | lytdlg fmt - | tr '\r' '#'
  $VERSION 1#
  $LAYOUT S
  $VALUES
  A=b#
  A=c (no-eol)

What changes is written and named, and nothing else is.

  $ mkdir some && cd some
  $ cat >b.DLG <<'END'
  > $VERSION  1
  > $LAYOUT S
  > Begin Dialog Box 1, 2, "T", .M
  > $VALUES
  > A=b
  > 
  > $END
  > END
  $ cp b.DLG a.dlg && cp b.DLG d.txt && cp b.DLG before
  $ lytdlg fmt . --check
  ./a.dlg
  ./b.DLG
  [1]
  $ lytdlg fmt - --check <before
  -
  [1]
  $ cmp a.dlg before
  $ lytdlg fmt .
  ./a.dlg: formatted
  ./b.DLG: formatted
  $ cat a.dlg
  $VERSION 1
  $LAYOUT S
  Begin Dialog Box 1, 2, "T", .M
  $VALUES
      A = b
  
  $END
  $ cmp d.txt before
  $ lytdlg fmt .
  $ lytdlg fmt . --check
  $ ls
  a.dlg
  b.DLG
  before
  d.txt

A file that cannot be formatted stays, and the others have their turn.

  $ (for name in A B C D E F G H I; do echo "<$name"; echo ">"; done; cat before) >many.dlg
  $ cp many.dlg kept && cp before a.dlg && cp before protected.dlg && chmod a-w protected.dlg
  $ lytdlg fmt .
  ./a.dlg: formatted
  lytdlg: ./many.dlg asks for 9 defines, and no more than 8 can be tried in every choice; it is left as it is
  lytdlg: ./protected.dlg is write-protected; it stays as it was
  [1]
  $ cmp many.dlg kept
  $ cmp protected.dlg before
