A session of an editor with the language server, byte for byte.

  $ . "$HERE/setup.sh"

  $ message() { printf 'Content-Length: %d\r\n\r\n%s' ${#1} "$1"; }
  $ message_about() { message "{\"jsonrpc\":\"2.0\",\"id\":$1,\"method\":\"$2\",\"params\":{\"textDocument\":{\"uri\":\"file:///none/a.dlg\"}}}"; }
  $ TEXT='$VERSION 1\n$LAYOUT\nBegin Dialog Box 9, 9, \"T\", .M\nEnd Dialog\n'
  $ {
  >   message '{"jsonrpc":"2.0","id":1,"method":"initialize","params":{"capabilities":{}}}'
  >   message "{\"jsonrpc\":\"2.0\",\"method\":\"textDocument/didOpen\",\"params\":{\"textDocument\":{\"uri\":\"file:///none/a.dlg\",\"text\":\"$TEXT\"}}}"
  >   message_about 2 textDocument/foldingRange
  >   printf 'Wrong: 1\r\n\r\n'
  >   message 'no JSON'
  >   message '{"jsonrpc":"2.0","id":3,"method":"shutdown"}'
  >   message '{"jsonrpc":"2.0","method":"exit"}'
  > } >session
  $ WINE_INPUT=session lytdlg lsp <session | tr -d '\r' | sed -e 's/}Content/}\nContent/g' | grep -v -e '^Content' -e '^$' | cut -c1-60
  {"jsonrpc":"2.0","id":null,"error":{"code":-32700,"message":
  {"jsonrpc":"2.0","id":1,"result":{"capabilities":{"positionE
  {"jsonrpc":"2.0","id":2,"result":[{"startLine":1,"endLine":3
  {"jsonrpc":"2.0","id":3,"result":null}
  $ message '{"jsonrpc":"2.0","method":"exit"}' | lytdlg lsp
  [1]
  $ printf '' | lytdlg lsp
  [1]
