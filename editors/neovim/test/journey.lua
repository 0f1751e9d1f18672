-- A session in Neovim without a screen: a sample is opened, broken, mended, completed, searched, renamed and formatted, by
-- what an author's keys would call. Ends with the exit code 1 at the first thing that is not as it should be.
local function fail(text)
  io.stderr:write('journey.lua: ' .. text .. '\n')
  vim.cmd('cquit 1')
end

local function expect(condition, text)
  if not condition then
    fail(text)
  end
end

local patience = 20000 * (tonumber(vim.env.LYT_PATIENCE) or 1)
local function wait(text, predicate)
  expect(vim.wait(patience, predicate, 20), 'waited in vain until ' .. text)
end

-- The cursor on the first letter of a text, in its first line with the start.
local function go(start, text)
  for number, line in ipairs(vim.api.nvim_buf_get_lines(0, 0, -1, true)) do
    local column = vim.startswith(vim.trim(line), start) and line:find(text, 1, true)
    if column then
      vim.api.nvim_win_set_cursor(0, { number, column - 1 })
      return number
    end
  end
  fail('no line begins with "' .. start .. '" and has "' .. text .. '"')
end

local function findings()
  return vim.diagnostic.get(0)
end

local function ask(method, params)
  local answers, reason = vim.lsp.buf_request_sync(0, method, params or vim.lsp.util.make_position_params(), patience)
  local _, answer = next(answers or {})
  expect(answer and not answer.err, method .. ' failed: ' .. vim.inspect(reason or answer))
  return answer.result
end

local function lines()
  return table.concat(vim.api.nvim_buf_get_lines(0, 0, -1, true), '\n')
end

vim.cmd('filetype plugin on | syntax on')
vim.cmd('edit lytInSym.dlg')
expect(vim.bo.filetype == 'lytdlg', 'the type of the file is ' .. vim.bo.filetype)
expect(vim.bo.fileencoding == 'cp1252', 'the encoding is ' .. vim.bo.fileencoding)
wait('the server is there', function()
  return #vim.lsp.buf_get_clients(0) == 1
end)

local number = go('Mark = HIDDEN', 'HIDDEN')
vim.api.nvim_buf_set_lines(0, number - 1, number, true, { '    Mark = HIDEN' })
wait('the misspelt word is found', function()
  return #findings() > 0
end)
expect(findings()[1].lnum == number - 1, 'the finding is elsewhere: ' .. vim.inspect(findings()))
vim.api.nvim_buf_set_lines(0, number - 1, number, true, { '    Mark = HIDDEN' })
wait('nothing is found', function()
  return #findings() == 0
end)

go('Unit/ACTIVE', 'Digits')
local offered = ask('textDocument/completion')
local names = vim.tbl_map(function(item)
  return item.label
end, offered.items or offered)
expect(vim.tbl_contains(names, 'Missing'), 'completion does not offer "Missing": ' .. vim.inspect(names))

expect(vim.inspect(ask('textDocument/hover')):find('Digits', 1, true), 'hover says nothing about "Digits"')

local places = ask('textDocument/definition')
local place = places.range or places[1].range
local declared = vim.api.nvim_buf_get_lines(0, place.start.line, place.start.line + 1, true)[1]
expect(declared:find('%.Digits'), 'the definition is in "' .. declared .. '"')

vim.lsp.buf.rename('Places')
wait('the control has its new name', function()
  return lines():find('Unit/ACTIVE = Places(NOTNULL)', 1, true) ~= nil
end)
expect(not lines():find('[^%w]Digits%('), 'the old name is still there:\n' .. lines())

number = go('Unit/ACTIVE', 'Unit')
vim.api.nvim_buf_set_lines(0, number - 1, number, true, { '  Unit/ACTIVE=Places(NOTNULL)' })
vim.lsp.util.apply_text_edits(
  ask('textDocument/formatting', vim.lsp.util.make_formatting_params()),
  vim.api.nvim_get_current_buf(),
  'utf-16'
)
expect(lines():find('\n    Unit/ACTIVE = Places(NOTNULL)\n', 1, true), 'the text is not laid out:\n' .. lines())

-- Bytes of the code page come out as they went in.
vim.api.nvim_buf_set_lines(0, 0, 1, true, { '; Größe' })
vim.cmd('write')
local file = io.open('lytInSym.dlg', 'rb')
expect(file:read(7) == '; Gr\xF6\xDFe', 'the file is not in the code page')
file:close()
print('journey.lua: all as it should be')
vim.cmd('qall!')
