// Elements of the page. Texts become text nodes, never markup: those of a camera are hostile.

function fill(element, attributes, children) {
	for (const [name, value] of Object.entries(attributes)) {
		if (name.startsWith('on')) {
			element.addEventListener(name.slice(2), value);
		} else if (value !== undefined && value !== null && value !== false) {
			element.setAttribute(name, value === true ? '' : value);
		}
	}
	element.append(...children.filter((child) => child !== null && child !== undefined));
	return element;
}

/** Makes an element. Attributes "on..." are handlers of events; those that are false or missing are left out. */
export function make(tag, attributes = {}, ...children) {
	return fill(document.createElement(tag), attributes, children);
}

export function makeSvg(tag, attributes = {}, ...children) {
	return fill(document.createElementNS('http://www.w3.org/2000/svg', tag), attributes, children);
}

export function byId(id) {
	return document.getElementById(id);
}

/** Writes only what differs, so that a page that shows the same costs nothing. */
export function setText(element, text) {
	if (element.textContent !== text) {
		element.textContent = text;
	}
}

/** Tells a screen reader something that is only seen otherwise. */
export function announce(text) {
	byId('announcements').textContent = text;
}

/** Calls a function once for many calls, some time after the first of them. */
export function later(milliseconds, action) {
	let timer = 0;
	return () => {
		timer ||= setTimeout(() => {
			timer = 0;
			action();
		}, milliseconds);
	};
}

/** Offers bytes as a file to save. */
export function download(blob, name) {
	const link = make('a', { href: URL.createObjectURL(blob), download: name });
	link.click();
	setTimeout(() => URL.revokeObjectURL(link.href), 10000);
}

/** What the page remembers between visits. A browser may forbid it. */
export const memory = {
	get(key, otherwise) {
		try {
			return JSON.parse(localStorage.getItem(key)) ?? otherwise;
		} catch {
			return otherwise;
		}
	},
	set(key, value) {
		try {
			localStorage.setItem(key, JSON.stringify(value));
		} catch {
			// The page works without.
		}
	},
};

/** A check box that is remembered. */
export function remember(box, changed) {
	box.checked = memory.get(box.id, box.checked);
	box.addEventListener('change', () => {
		memory.set(box.id, box.checked);
		changed();
	});
}

/** A button that stays pressed. @return whether it is */
export function press(button) {
	const on = button.getAttribute('aria-pressed') !== 'true';
	button.setAttribute('aria-pressed', on);
	return on;
}

/** Asks a question in a dialog. @return whether the answer is yes */
export function ask(title, text, agree) {
	const dialog = make('dialog', { 'aria-labelledby': 'question' },
		make('form', { method: 'dialog' },
			make('h2', { id: 'question' }, title),
			make('p', {}, text),
			make('div', { class: 'buttons' },
				make('button', { value: '', autofocus: true }, 'Cancel'),
				make('button', { value: 'yes', class: 'danger' }, agree))));
	document.body.append(dialog);
	const before = document.activeElement;
	dialog.showModal();
	return new Promise((resolve) => {
		dialog.onclose = () => {
			dialog.remove();
			before?.focus();
			resolve(dialog.returnValue === 'yes');
		};
	});
}
