-- Starts `lytdlg lsp` once, and connects each description and language file with it.
vim.bo.commentstring = '; %s'
vim.bo.omnifunc = 'v:lua.vim.lsp.omnifunc'
local config = {
  name = 'lytdlg',
  cmd = { vim.g.lytdlg_program or 'lytdlg', 'lsp' },
  root_dir = vim.fn.expand('%:p:h'),
}
if vim.lsp.start then
  vim.lsp.start(config)
else
  -- Before Neovim 0.8.
  lytdlg_client = lytdlg_client or vim.lsp.start_client(config)
  vim.lsp.buf_attach_client(0, lytdlg_client)
end
