-- SPDX-License-Identifier: MIT
-- Turns the links and pictures of a chapter into those of the finished form: web pages and help
-- files link to .html and show .png icons and pictures of windows; the man page has neither.

local is_man = FORMAT:match("^man") ~= nil
local in_page_contents_from = 4 -- a page with this many sections lists them at its top

local function icon_name(source)
  return source:match("assets/icons/([%w-]+)%.svg$")
end

-- Width and height in pixels of a PNG file: two numbers, highest byte first, at offset 16.
local function png_size(path)
  local file = assert(io.open(path, "rb"))
  local head = file:read(24)
  file:close()
  assert(head and head:sub(2, 4) == "PNG", path .. " is no PNG file")
  return string.unpack(">I4I4", head, 17)
end

-- The picture of a window, with its size, so that the page does not jump while it loads.
local function show_window(image, name)
  local folder = pandoc.path.directory(PANDOC_STATE.input_files[1])
  local width, height = png_size(pandoc.path.join({ folder, image.src }))
  assert(#image.caption > 0, image.src .. " needs words for those who cannot see it")
  image.src = "pictures/" .. name .. ".png"
  image.classes = { "window" }
  image.attributes.width = tostring(width)
  image.attributes.height = tostring(height)
  return image
end

function Link(link)
  if is_man then
    return link.content
  end
  link.target = link.target:gsub("^([%w-]+)%.md", "%1.html")
  return link
end

function Image(image)
  if is_man then
    return {}
  end
  local window = image.src:match("^%.%./pictures/([%w-]+)%.png$")
  if window then
    return show_window(image, window)
  end
  local name = icon_name(image.src)
  if name then
    image.src = "icons/" .. name .. ".png"
    image.classes = { "icon" }
    image.attributes.width = "24"
    image.attributes.height = "24"
    image.attributes.alt = "" -- the words beside it say the same
  end
  return image
end

function Header(header)
  if not is_man then
    return header
  end
  if header.level == 1 then
    header.content = { pandoc.Str(pandoc.utils.stringify(header):upper()) }
  end
  header.identifier = ""
  return header
end

-- A man page has no typewriter face: what is to be typed is bold.
function Code(code)
  if is_man then
    return pandoc.Strong({ pandoc.Str(code.text) })
  end
end

local function cell_inlines(cell)
  return pandoc.utils.blocks_to_inlines(cell.contents)
end

-- One row of a table as term and explanation; titles = the inlines of the table's head.
-- A column "Also" belongs to the term. Several explaining columns begin with their titles.
local function row_as_definition(row, titles)
  local term = pandoc.List(cell_inlines(row.cells[1]))
  local paragraphs = pandoc.List()
  local explaining = 0
  for column = 2, #row.cells do
    if pandoc.utils.stringify(titles[column]) ~= "Also" then
      explaining = explaining + 1
    end
  end
  for column = 2, #row.cells do
    local inlines = pandoc.List(cell_inlines(row.cells[column]))
    local title = pandoc.utils.stringify(titles[column])
    if title == "Also" then
      if #inlines > 0 then
        term:extend({ pandoc.Str(","), pandoc.Space() })
        term:extend(inlines)
      end
    elseif #inlines > 0 then
      if explaining > 1 then
        inlines = pandoc.List({ pandoc.Str(title .. ":"), pandoc.Space() }) .. inlines
      end
      if #paragraphs > 0 then
        paragraphs:extend({ pandoc.Str(";"), pandoc.Space() })
      end
      paragraphs:extend(inlines)
    end
  end
  return { term, { { pandoc.Plain(paragraphs) } } }
end

-- Tables become lists of terms in the man page, where columns are too narrow to read.
function Table(tbl)
  if not is_man then
    return tbl
  end
  local titles = pandoc.List()
  for _, cell in ipairs(tbl.head.rows[1].cells) do
    titles:insert(cell_inlines(cell))
  end
  local items = pandoc.List()
  for _, row in ipairs(tbl.bodies[1].body) do
    items:insert(row_as_definition(row, titles))
  end
  return pandoc.DefinitionList(items)
end

-- Section links below the title of a long page.
function Pandoc(doc)
  if is_man then
    return doc
  end
  local items = pandoc.List()
  for _, block in ipairs(doc.blocks) do
    if block.t == "Header" and block.level == 2 then
      items:insert({ pandoc.Plain({ pandoc.Link(block.content, "#" .. block.identifier) }) })
    end
  end
  if #items >= in_page_contents_from then
    doc.blocks:insert(2, pandoc.Div({ pandoc.BulletList(items) }, { class = "sections" }))
  end
  return doc
end
