// Measure windows, overlays and the readout area over the picture. They are dragged, or moved with the arrow keys; what
// the camera made of it replaces what was asked for.

import { byId, makeSvg, remember, setText } from './dom.js';
import { sensorBox, shapesOf } from './geometry.js';
import { same } from './values.js';

const groups = { windows: 'show-windows', overlays: 'show-overlays', area: 'show-area' };
const handleSize = 8;
const smallShape = 40; // screen pixels: its handles are outside, its name is not shown
const farKey = 10; // pixels, with Ctrl
const ghostTime = 1500; // milliseconds
const arrows = { ArrowLeft: [-1, 0], ArrowRight: [1, 0], ArrowUp: [0, -1], ArrowDown: [0, 1] };

export class Shapes {
	#functions;
	#view;
	#elements = new Map(); // by name
	#drafts = new Map();   // values that the camera has not answered, by function
	#svg = byId('shapes');
	#sensor = makeSvg('path', { class: 'sensor' });

	constructor(functions, view) {
		this.#functions = functions;
		this.#view = view;
		for (const [group, id] of Object.entries(groups)) {
			remember(byId(id), () => group === 'area' ? this.#fitSensor(true) : this.draw());
		}
		this.#svg.append(this.#sensor);
		view.onChange(() => this.draw());
		let due = false;
		functions.onChange((name) => {
			if (!due && /^(measure|overlay|readoutarea$|circular|horizontalflip|verticalflip)/.test(name)) {
				due = true;
				requestAnimationFrame(() => {
					due = false;
					this.#fitSensor(false);
				});
			}
		});
	}

	/** With the readout area, all of the sensor fits into the stage. */
	#fitSensor(changed) {
		const world = byId(groups.area).checked ? sensorBox(this.#functions) : null;
		if (changed || !same(world, this.#view.world)) {
			this.#view.world = world;
			this.#view.fit();
		} else {
			this.draw();
		}
	}

	draw() {
		const size = this.#view.size;
		const shapes = size ? shapesOf(this.#functions, this.#drafts, size).filter(({ group }) => byId(groups[group]).checked) : [];
		for (const [name, element] of this.#elements) {
			if (!shapes.some((shape) => shape.name === name)) {
				element.group.remove();
				this.#elements.delete(name);
			}
		}
		for (const shape of shapes) {
			if (!this.#elements.has(shape.name)) {
				this.#elements.set(shape.name, this.#make(shape));
			}
			const element = this.#elements.get(shape.name);
			element.shape = shape;
			this.#place(element);
		}
		this.#drawSensor(this.#view.world);
		byId(groups.area).closest('label').hidden = !this.#functions.get('readoutarea');
	}

	#drawSensor(box) {
		const from = box && this.#view.toScreen({ x: box.left, y: box.top });
		const to = box && this.#view.toScreen({ x: box.left + box.width, y: box.top + box.height });
		this.#sensor.setAttribute('d', box ? `M${from.x} ${from.y}H${to.x}V${to.y}H${from.x}Z` : '');
	}

	#make(shape) {
		const outline = makeSvg('path', { class: 'outline' });
		const halo = makeSvg('path', { class: 'halo' });
		const label = makeSvg('text', { 'aria-hidden': 'true' });
		const handles = shape.handles.map((handle) => ({
			handle, mark: makeSvg('rect', { class: 'handle', width: handleSize, height: handleSize }),
		}));
		const group = makeSvg('g', { class: `shape ${shape.group}`, tabindex: 0, role: 'button' },
			halo, outline, label, ...handles.map(({ mark }) => mark));
		group.dataset.name = shape.name;
		const element = { group, outline, halo, label, handles, shape };
		for (const { handle, mark } of handles) {
			mark.classList.add(`at${handle.x + 1}${handle.y + 1}`);
			this.#drag(element, mark, handle);
		}
		this.#drag(element, halo, { x: 0, y: 0 });
		group.addEventListener('keydown', (event) => this.#handleKey(event, element));
		this.#svg.append(group);
		return element;
	}

	#place({ group, outline, halo, label, handles, shape }) {
		const { left, top, right, bottom } = this.#boundsOnScreen(shape);
		const path = this.#pathOf(shape);
		outline.setAttribute('d', path);
		halo.setAttribute('d', path);
		label.setAttribute('x', left);
		label.setAttribute('y', top - 6 < 10 ? bottom + 14 : top - 6);
		setText(label, shape.name);
		const small = right - left < smallShape || bottom - top < smallShape;
		group.classList.toggle('small', small);
		const spread = small ? handleSize : handleSize / 2;
		for (const { handle: { x, y }, mark } of handles) {
			const place = (low, high, side) => (low + high) / 2 + side * ((high - low) / 2 + spread - handleSize / 2);
			mark.setAttribute('x', place(left, right, x) - handleSize / 2);
			mark.setAttribute('y', place(top, bottom, y) - handleSize / 2);
		}
		const [, value] = shape.write(shape.geometry)[0];
		const text = `${shape.name} ${Object.entries(value).map(([field, number]) => `${field} ${number}`).join(', ')}. `
			+ `Arrow keys move it${shape.handles.length > 0 ? ', with Shift they resize it' : ''}.`;
		if (group.getAttribute('aria-label') !== text) {
			group.setAttribute('aria-label', text);
		}
	}

	/** Pixels of a box are whole: it ends after the last one. */
	#boundsOnScreen({ kind, geometry }) {
		const { x, y, across, down, length } = geometry;
		const [from, to] = kind === 'box'
			? [{ x: geometry.left, y: geometry.top }, { x: geometry.right + 1, y: geometry.bottom + 1 }]
			: kind === 'ellipse' ? [{ x: x - across, y: y - down }, { x: x + across, y: y + down }]
				: [{ x: x - length / 2, y: y - length / 2 }, { x: x + length / 2, y: y + length / 2 }];
		const first = this.#view.toScreen(from);
		const last = this.#view.toScreen(to);
		return { left: first.x, top: first.y, right: last.x, bottom: last.y };
	}

	#pathOf(shape) {
		const { left, top, right, bottom } = this.#boundsOnScreen(shape);
		if (shape.kind === 'box') {
			return `M${left} ${top}H${right}V${bottom}H${left}Z`;
		}
		const [x, y] = [(left + right) / 2, (top + bottom) / 2];
		if (shape.kind === 'ellipse') {
			const radii = `${(right - left) / 2} ${(bottom - top) / 2}`;
			return `M${left} ${y}A${radii} 0 1 1 ${right} ${y}A${radii} 0 1 1 ${left} ${y}Z`;
		}
		const least = 12; // so that a short line can be found
		const [halfX, halfY] = [Math.max(right - x, least), Math.max(bottom - y, least)];
		return (shape.geometry.style === 1 ? '' : `M${x - halfX} ${y}H${x + halfX}`)
			+ (shape.geometry.style === 0 ? `M${x} ${y - 5}V${y + 5}` : `M${x} ${y - halfY}V${y + halfY}`);
	}

	#drag(element, target, handle) {
		let from = null;
		let wishes = [];
		target.addEventListener('pointerdown', (event) => {
			if (event.button === 0) {
				event.stopPropagation();
				event.preventDefault();
				from = { at: this.#view.toPicture(event), geometry: element.shape.geometry };
				wishes = [];
				target.setPointerCapture(event.pointerId);
				element.group.focus({ preventScroll: true });
			}
		});
		target.addEventListener('pointermove', (event) => {
			if (from) {
				const at = this.#view.toPicture(event);
				wishes = this.#draft(element.shape, from.geometry, handle, Math.round(at.x - from.at.x),
					Math.round(at.y - from.at.y));
			}
		});
		target.addEventListener('pointerup', () => {
			from = null;
			this.#commit(element, wishes);
		});
		target.addEventListener('pointercancel', () => {
			from = null;
			wishes.forEach(([name]) => this.#drafts.delete(name));
			this.draw();
		});
	}

	#handleKey(event, element) {
		const arrow = arrows[event.key];
		if (!arrow || event.altKey || event.metaKey) {
			return;
		}
		event.preventDefault();
		const { shape } = element;
		const [dx, dy] = arrow.map((each) => each * (event.ctrlKey ? farKey : 1));
		const resizes = event.shiftKey && shape.handles.length > 0;
		const handle = resizes ? { x: Math.abs(arrow[0]), y: Math.abs(arrow[1]) } : { x: 0, y: 0 };
		this.#commit(element, this.#draft(shape, shape.geometry, handle, dx, dy));
	}

	/** Shows a shape moved. @return what to set: functions and their values */
	#draft(shape, geometry, handle, dx, dy) {
		const wishes = shape.write(shape.move(geometry, handle, dx, dy));
		wishes.forEach(([name, value]) => this.#drafts.set(name, value));
		this.draw();
		return wishes;
	}

	async #commit({ shape }, wishes) {
		const path = this.#pathOf(shape);
		const isNew = ([name, value]) => !same(this.#functions.value(name), value);
		await Promise.all(wishes.filter(isNew).map(([name, value]) => this.#functions.set(name, value)));
		if (wishes.some(([name, value]) => this.#drafts.get(name) !== value)) {
			return; // it has been moved on
		}
		wishes.forEach(([name]) => this.#drafts.delete(name));
		this.draw();
		if (wishes.some(isNew)) {
			this.#showGhost(path);
		}
	}

	/** What was asked for fades away, where the camera made something else of it. */
	#showGhost(path) {
		const ghost = makeSvg('path', { class: 'ghost', d: path });
		this.#svg.prepend(ghost);
		setTimeout(() => ghost.remove(), ghostTime);
	}
}
